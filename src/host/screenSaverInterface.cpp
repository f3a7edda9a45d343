// Anchors the screen saver interface: its destructor lives here.
#include "host/screenSaverInterface.h"

xplScreenSaverInterface::~xplScreenSaverInterface() = default;
