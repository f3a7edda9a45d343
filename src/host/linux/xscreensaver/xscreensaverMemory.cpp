// Implements the keeping of the choice.
#include "host/linux/xscreensaver/xscreensaverMemory.h"

#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>

#include "host/linux/hostFailure.h"
#include "host/linux/xscreensaver/preferencesFile.h"
#include "support/fileSystem.h"

namespace xscreensaver {

namespace {

constexpr std::string_view firstLine = "# What ~/.xscreensaver said before lunaria --install-xscreensaver\n";
constexpr std::string_view digits = "0123456789abcdef";

// Each byte that cannot stand in a line, and the mark itself, as % and two hexadecimal digits.
std::string escaped(const std::string& value) {
  std::string text;
  for (const char character : value) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < ' ' || byte == '%') {
      text += '%';
      text += digits[byte / 16];
      text += digits[byte % 16];
    } else {
      text += character;
    }
  }
  return text;
}

std::string unescaped(std::string_view text) {
  std::string value;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '%' || at + 2 >= text.size()) {
      value += text[at];
      continue;
    }
    value += static_cast<char>(digits.find(text[at + 1]) * 16 + digits.find(text[at + 2]));
    at += 2;
  }
  return value;
}

std::string folder() {
  const std::string base = xplFileSystemMini::getFolder_UserData();
  return base.empty() ? "" : xplFileSystemMini::joinPath(base, "Lunaria software");
}

std::optional<std::string> valueOf(const std::map<std::string, std::string>& values, const char* key) {
  const auto found = values.find(key);
  return found == values.end() ? std::nullopt : std::optional(unescaped(found->second));
}

}  // namespace

std::string textOf(const Memory& memory) {
  std::string text(firstLine);
  text += memory.hadFile ? "file=yes\n" : "file=no\n";
  if (memory.choice.mode) {
    text += "mode=" + escaped(*memory.choice.mode) + "\n";
  }
  if (memory.choice.selected) {
    text += "selected=" + escaped(*memory.choice.selected) + "\n";
  }
  return text;
}

std::optional<Memory> memoryOf(const std::string& text) {
  std::map<std::string, std::string> values;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const std::string line = text.substr(begin, end - begin);
    if (const std::size_t equals = line.find('='); equals != std::string::npos) {
      values[line.substr(0, equals)] = line.substr(equals + 1);
    }
    begin = end + 1;
  }
  if (!values.contains("file")) {
    return std::nullopt;
  }
  return Memory{.hadFile = values["file"] != "no",
                .choice = {.mode = valueOf(values, "mode"), .selected = valueOf(values, "selected")}};
}

std::string memoryPath() {
  return folder().empty() ? "" : xplFileSystemMini::joinPath(folder(), "xscreensaver-before");
}

void keep(const Memory& memory) {
  const std::string path = memoryPath();
  if (path.empty()) {
    throw HostFailure("no folder for settings: set HOME to your home folder");
  }
  xplFileSystemMini::createFolder(folder());
  writePreferences(path, textOf(memory));
}

std::optional<Memory> kept() {
  const std::string path = memoryPath();
  const auto text = path.empty() ? std::nullopt : readPreferences(path);
  return text ? memoryOf(*text) : std::nullopt;
}

void forget() {
  const std::string path = memoryPath();
  if (path.empty()) {
    return;
  }
  // What stays behind does no harm: the next choice of Lunaria writes it anew.
  std::error_code unused;
  std::filesystem::remove(path, unused);
  std::filesystem::remove(folder(), unused);
}

}  // namespace xscreensaver
