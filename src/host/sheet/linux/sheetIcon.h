// The icon of the settings sheet.
#pragma once

#include <QIcon>

// In all sizes that the program carries; an empty icon where it carries none.
QIcon sheetIcon();
