// Makes the program dark where the desktop is.
#pragma once

#include <QDBusConnection>
#include <QPalette>

// True where the desktop's portal on this bus answers that dark colours are wanted. False also where there is
// no bus or no portal, or where it does not answer at once; none is started for this question, and an answer
// is waited for 200 milliseconds at most.
bool desktopWantsDark(const QDBusConnection& bus);

// Light texts on dark grey, for all controls, those that are switched off included.
QPalette darkPalette();

// The toolkit knows the colours of some desktops alone. Where it has light ones and the session's portal asks
// for dark ones, the application gets darkPalette().
void followDesktopColours();
