// What the user's choice of saver was before Lunaria took its place, kept in a file of our own:
// XScreenSaver's settings program writes its file anew and drops what it does not know.
#pragma once

#include <optional>
#include <string>

#include "host/linux/xscreensaver/xscreensaverChoice.h"

namespace xscreensaver {

struct Memory {
  bool hadFile = true;  // whether there was a preferences file at all
  ChoiceBefore choice;
};

// The memory as lines, and back; nothing where the text is no such thing.
std::string textOf(const Memory& memory);
std::optional<Memory> memoryOf(const std::string& text);

// The file's full path, in the user's data folder; empty where there is none.
std::string memoryPath();
// Keeps the memory. Throws HostFailure where that fails.
void keep(const Memory& memory);
// The memory that is kept; nothing where there is none that can be read.
std::optional<Memory> kept();
// Removes it, and its folder where nothing else is in there.
void forget();

}  // namespace xscreensaver
