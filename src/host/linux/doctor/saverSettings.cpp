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

int roundedUpToMinutes(int seconds) {
  constexpr int secondsPerMinute = 60;
  return (seconds + secondsPerMinute - 1) / secondsPerMinute;
}

}  // namespace

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
    settings.isListed = settings.isListed || (isOn && entry.programName() == ourProgram);
  }
  const auto selected = numberOf(valueOf(text, "selected"));
  if (selected && static_cast<std::size_t>(*selected) < entries.size()) {
    settings.chosen = entries[static_cast<std::size_t>(*selected)].programName();
  }
  return settings;
}

std::optional<int> minutesUntilLunaria(const std::string& text) {
  std::optional<int> found;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t first = line.find_first_not_of(" \t");
    const std::size_t ours = line.find(ourProgram);
    if (ours == std::string::npos || line[first] == '#') {
      continue;
    }
    // Of several times on the line, the one that stands before Lunaria.
    std::istringstream words(line.substr(0, ours));
    std::optional<int> seconds;
    for (std::string word, before; words >> word; before = word) {
      seconds = before == "timeout" ? numberOf(word) : seconds;
    }
    found = roundedUpToMinutes(seconds.value_or(0));
  }
  return found;
}
