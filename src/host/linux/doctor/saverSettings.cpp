// Reads the settings of those who start screen savers.
#include "host/linux/doctor/saverSettings.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <vector>

#include "host/linux/xscreensaver/xscreensaverLines.h"
#include "host/linux/xscreensaver/xscreensaverPrograms.h"

namespace {

constexpr char ourProgram[] = "lunaria";

// A number from 0 to a million that fills the whole text.
std::optional<int> numberOf(const std::string& text) {
  constexpr int most = 1000000;
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const bool isNumber = !text.empty() && error == std::errc{} && stop == end;
  return isNumber && number >= 0 && number <= most ? std::optional(number) : std::nullopt;
}

std::string valueOf(const std::string& text, const char* key) {
  const auto lines = xscreensaver::linesOf(text);
  const auto* line = xscreensaver::lineOf(lines, key);
  return line != nullptr ? xscreensaver::plainValue(text, *line) : "";
}

XScreenSaverSettings::Mode modeOf(const std::string& name) {
  using Mode = XScreenSaverSettings::Mode;
  return name == "off" ? Mode::off : name == "blank" ? Mode::blank : name == "one" ? Mode::one : Mode::random;
}

// A line of hypridle's settings: the key and the value of one that sets something.
struct Setting {
  std::string key, value;
};

std::string trimmed(const std::string& text) {
  return std::string(xscreensaver::trimmed(text));
}

Setting settingOf(const std::string& line) {
  const std::size_t equals = line.find('=');
  return equals == std::string::npos
             ? Setting{}
             : Setting{trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1))};
}

bool namesLunaria(const std::string& text) {
  return text.find(ourProgram) != std::string::npos;
}

// The lines of a text, without the blanks at their ends and without those that are comments. A "#" later on a
// line may belong to a command.
std::vector<std::string> plainLinesOf(const std::string& text) {
  std::vector<std::string> plain;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    line = trimmed(line);
    if (!line.empty() && line.front() != '#') {
      plain.push_back(line);
    }
  }
  return plain;
}

// A line of hypridle's settings without the comment at its end.
std::string withoutComment(const std::string& line) {
  return trimmed(line.substr(0, line.find('#')));
}

bool opensListener(const std::string& line) {
  const std::string words = withoutComment(line);
  return words.back() == '{' && trimmed(words.substr(0, words.size() - 1)) == "listener";
}

// Of several listeners that start it, the first to do so; 0 where it is what locks the screen.
std::optional<int> secondsInListeners(const std::vector<std::string>& lines) {
  std::optional<int> found;
  bool locks = false;
  bool isListener = false;
  bool starts = false;
  int seconds = 0;
  for (const std::string& line : lines) {
    const std::string words = withoutComment(line);
    const Setting setting = settingOf(words);
    locks = locks || (setting.key == "lock_cmd" && namesLunaria(setting.value));
    if (opensListener(line)) {
      isListener = true;
      starts = false;
      seconds = 0;
    } else if (words == "}") {
      found = isListener && starts ? std::min(found.value_or(seconds), seconds) : found;
      isListener = false;
    } else if (setting.key == "timeout") {
      seconds = numberOf(setting.value).value_or(0);
    } else if (setting.key == "on-timeout") {
      starts = namesLunaria(setting.value);
    }
  }
  return !found && locks ? std::optional(0) : found;
}

// On a line of a command; 0 where it does not say when.
int secondsOnLine(const std::string& line) {
  constexpr int secondsPerMinute = 60;
  constexpr char minutesOption[] = "-time";  // xautolock's, anywhere on the line
  int seconds = 0;
  std::istringstream words(line);
  // Of several times on the line, the one that stands before Lunaria.
  const auto ours = static_cast<std::streamoff>(line.find(ourProgram));
  for (std::string word, before; words >> word; before = word) {
    const bool isBefore = !words.eof() && words.tellg() <= ours;
    const auto number = numberOf(word);
    if (number && before == minutesOption) {
      return *number * secondsPerMinute;
    }
    seconds = number && before == "timeout" && isBefore ? *number : seconds;
  }
  return seconds;
}

}  // namespace

int roundedUpToMinutes(int seconds) {
  constexpr int secondsPerMinute = 60;
  return (seconds + secondsPerMinute - 1) / secondsPerMinute;
}

std::optional<int> minutesOf(const std::string& time) {
  int seconds = 0;
  std::istringstream parts(time);
  for (std::string part; std::getline(parts, part, ':');) {
    const auto number = numberOf(part);
    constexpr int mostSeconds = 1000000;
    if (!number || seconds > mostSeconds) {
      return std::nullopt;
    }
    seconds = seconds * 60 + *number;
  }
  return time.empty() ? std::nullopt : std::optional(roundedUpToMinutes(seconds));
}

XScreenSaverSettings readXScreenSaver(const std::string& text) {
  XScreenSaverSettings settings;
  settings.mode = modeOf(valueOf(text, "mode"));
  settings.minutes = std::max(minutesOf(valueOf(text, "timeout")).value_or(settings.minutes), 1);
  const auto lines = xscreensaver::linesOf(text);
  const auto* list = xscreensaver::lineOf(lines, "programs");
  const auto entries =
      list != nullptr ? xscreensaver::programsOf(text, *list).entries : std::vector<xscreensaver::Entry>();
  for (const auto& entry : entries) {
    const bool isOn = text[entry.textBegin] != '-';
    settings.listed += isOn ? 1 : 0;
    const bool isOurs = isOn && entry.programName() == ourProgram;
    settings.program = isOurs && !settings.isListed ? entry.program() : settings.program;
    settings.isListed = settings.isListed || isOurs;
  }
  const auto selected = numberOf(valueOf(text, "selected"));
  if (selected && static_cast<std::size_t>(*selected) < entries.size()) {
    const auto& entry = entries[static_cast<std::size_t>(*selected)];
    settings.chosen = entry.programName();
    const bool isShown = settings.mode == XScreenSaverSettings::Mode::one && settings.chosen == ourProgram;
    settings.program = isShown ? entry.program() : settings.program;
  }
  return settings;
}

std::optional<int> minutesUntilLunaria(const std::string& text) {
  const auto lines = plainLinesOf(text);
  std::optional<int> seconds;
  if (std::any_of(lines.begin(), lines.end(), opensListener)) {
    seconds = secondsInListeners(lines);
  } else {
    for (const std::string& line : lines) {
      seconds = namesLunaria(line) ? std::optional(secondsOnLine(line)) : seconds;
    }
  }
  return seconds ? std::optional(roundedUpToMinutes(*seconds)) : std::nullopt;
}
