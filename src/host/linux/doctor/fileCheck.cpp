// Looks at the program's own files.
#include <sstream>

#include "host/linux/doctor/checks.h"

namespace {

std::string quoted(const std::string& path) {
  return "\"" + path + "\"";
}

// A file that may be missing.
Finding lookAtFile(SystemView& system, const std::string& what, const std::string& path) {
  if (path.empty()) {
    return {what + ": no home folder is known to keep the file in.",
            "set HOME to your folder and log in anew"};
  }
  const FileView file = system.file(path);
  const std::string place = ":\n" + path;
  switch (file.kind) {
    case FileView::Kind::other:
      return {what + ": what stands in its place is no file" + place,
              "mv " + quoted(path) + " " + quoted(path + ".old")};
    case FileView::Kind::missing:
      return file.canBeWritten
                 ? Finding{what + " (there is no such file yet)" + place, ""}
                 : Finding{what + ": the file cannot be made, for its folder is not yours" + place,
                           "make the folder of that file yours, or make it writable"};
    case FileView::Kind::file:
      break;
  }
  if (!file.canBeRead || !file.canBeWritten) {
    return {what + ": the file cannot be " + (file.canBeRead ? "written" : "read") + place,
            "sudo chown \"$USER\" " + quoted(path) + " && chmod u+rw " + quoted(path)};
  }
  return {what + place, ""};
}

// Lines that set nothing: neither blank nor with a key before a "=".
int strangeLinesIn(const std::string& settings) {
  int strange = 0;
  std::istringstream lines(settings);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    const std::size_t equals = line.find('=');
    const bool setsSomething =
        equals != std::string::npos && equals != first && line.find('\0') == std::string::npos;
    strange += first != std::string::npos && !setsSomething ? 1 : 0;
  }
  return strange;
}

Finding lookAtSettings(SystemView& system, const std::string& path) {
  Finding file = lookAtFile(system, "The settings", path);
  const auto content = file.isProblem() ? std::nullopt : system.contentOf(path);
  const int strange = content ? strangeLinesIn(*content) : 0;
  if (strange == 0) {
    return file;
  }
  return {"The settings: the file is damaged, " +
              (strange == 1 ? "1 line of it sets" : std::to_string(strange) + " lines of it set") +
              " nothing:\n" + path,
          "mv " + quoted(path) + " " + quoted(path + ".old") + "   (and choose your settings anew)"};
}

Finding lookAtLog(SystemView& system, const std::string& path) {
  const Finding found = lookAtFile(system, "The log of the last run", path);
  const bool isNone = !found.isProblem() && system.file(path).kind == FileView::Kind::missing;
  return isNone ? Finding{"There is no log yet. The next run writes it, here:\n" + path, ""} : found;
}

Finding lookForConfigure(SystemView& system) {
  return system.isInstalled("lunaria-configure")
             ? Finding{"The settings can be edited: lunaria --configure", ""}
             : Finding{"The program that edits the settings, lunaria-configure, is not installed.",
                       "sudo apt install lunaria-configure"};
}

}  // namespace

Findings FileCheck::look(SystemView& system) {
  const OwnFiles files = system.ownFiles();
  return {lookAtSettings(system, files.settings), lookForConfigure(system),
          lookAtFile(system, "Your own quotations", files.quotes),
          lookAtFile(system, "The record of use", files.usage), lookAtLog(system, files.log)};
}
