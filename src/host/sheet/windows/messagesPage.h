// The controls of the Messages page.
#pragma once

#include "graphics/windows/gdi.h"
#include "host/sheet/messageEditor.h"

// Limits the edits to what is kept of them, and shows the current entry.
void initializeMessagesPage(HWND dialog, MessageEditor& editor);
// Takes what stands in the edits into the current entry.
void storeMessageEdits(HWND dialog, MessageEditor& editor);
// Does what the button with this id does, and shows the entry that is current then. Other ids do nothing.
void pressMessageButton(HWND dialog, int button, MessageEditor& editor);
