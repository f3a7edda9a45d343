// Implements the installation into XScreenSaver's preferences file.
#include "host/linux/xscreensaver/xscreensaver.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "host/linux/hostFailure.h"
#include "host/linux/xscreensaver/preferencesFile.h"
#include "host/linux/xscreensaver/saverPrograms.h"
#include "host/linux/xscreensaver/xscreensaverChoice.h"
#include "host/linux/xscreensaver/xscreensaverMemory.h"
#include "support/fileSystem.h"

namespace {

const std::string programName = "lunaria";

// Characters that neither the shell nor XScreenSaver's list takes for anything else.
constexpr std::string_view plainCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/._+,@%-";

std::string preferencesPath() {
  const std::string home = xplFileSystemMini::getFolder_UserHome();
  if (home.empty()) {
    throw HostFailure("no home folder: set HOME to yours");
  }
  return xplFileSystemMini::joinPath(home, ".xscreensaver");
}

// The name alone where XScreenSaver finds this very program by it, else the full path.
std::string commandOf(const std::string& program) {
  for (const std::string_view folder : xscreensaver::saverFolders) {
    std::error_code error;
    if (std::filesystem::equivalent(xplFileSystemMini::joinPath(folder, programName), program, error)) {
      return programName + " --root";
    }
  }
  if (xplFileSystemMini::fileNameOf(program) != programName ||
      program.find_first_not_of(plainCharacters) != std::string::npos) {
    throw HostFailure("XScreenSaver cannot start '" + program +
                      "': let the program be named lunaria, in a folder whose path holds letters, digits and "
                      ".-_+,@% only");
  }
  return program + " --root";
}

// What the file says, checked for what cannot be changed safely.
std::optional<std::string> readChecked(const std::string& path) {
  auto text = readPreferences(path);
  if (text && xscreensaver::isListBroken(*text)) {
    throw HostFailure(path +
                      " has line ends of Windows, with which XScreenSaver cannot read its list of programs: "
                      "mend it with  sed -i 's/\\r$//' '" +
                      path + "'");
  }
  return text;
}

// The memory first: a choice that is not remembered could not be given back.
void writeWithMemory(const std::string& path, const std::string& text, const xscreensaver::Memory& memory) {
  const auto earlier = xscreensaver::kept();
  xscreensaver::keep(memory);
  try {
    writePreferences(path, text);
  } catch (const HostFailure&) {
    if (earlier) {
      xscreensaver::keep(*earlier);
    } else {
      xscreensaver::forget();
    }
    throw;
  }
}

std::string furtherAdvice() {
  if (!xscreensaver::isOnPath("xscreensaver")) {
    return "XScreenSaver itself is not installed yet: install the package xscreensaver and start it with "
           "your session.\n";
  }
  return "See it with: xscreensaver-command --activate (where that finds no daemon, start one: xscreensaver "
         "&)\n";
}

}  // namespace

std::string installInXScreenSaver(const std::string& program) {
  const std::string path = preferencesPath();
  const auto text = readChecked(path);
  const auto chosen = xscreensaver::choose(text.value_or(""), commandOf(program), xscreensaver::canStart);
  if (text && chosen.text == *text) {
    return "Lunaria is XScreenSaver's saver already: " + path + " says so.\n" + furtherAdvice();
  }
  writeWithMemory(path, chosen.text, {.hadFile = text.has_value(), .choice = chosen.before});
  return "Lunaria is XScreenSaver's saver now: " + path + " says so.\n" + furtherAdvice() +
         "Take it out again with: lunaria --uninstall-xscreensaver\n";
}

std::string uninstallFromXScreenSaver() {
  const std::string path = preferencesPath();
  const auto text = readChecked(path);
  if (!text || !xscreensaver::isListed(*text)) {
    return "Lunaria is not in XScreenSaver's list: nothing to change in " + path + ".\n";
  }
  const auto memory = xscreensaver::kept();
  const std::string without =
      xscreensaver::takeOut(*text, memory ? std::optional(memory->choice) : std::nullopt);
  if (without.empty() && memory && !memory->hadFile) {
    removePreferences(path);
  } else {
    writePreferences(path, without);
  }
  xscreensaver::forget();
  return "Lunaria is not XScreenSaver's saver any more: it was taken out of " + path + ".\n";
}
