// Makes memory for a frame that can be handed to a display server.
#pragma once

#include <cstddef>

#include "host/linux/fileDescriptor.h"

// A nameless file of this many bytes (above 0), to be mapped on both sides: it goes with its last user, also
// after a crash of both. Not open where there is not that much memory.
FileDescriptor makeFrameFile(std::size_t size);
