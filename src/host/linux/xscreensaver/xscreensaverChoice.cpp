// Implements the choice of Lunaria.
#include "host/linux/xscreensaver/xscreensaverChoice.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "host/linux/xscreensaver/xscreensaverPrograms.h"

namespace xscreensaver {

namespace {

constexpr std::string_view ourProgram = "lunaria";
constexpr long noEntry = -1;

std::vector<Entry> entriesOf(const std::string& text) {
  const auto lines = linesOf(text);
  const Line* list = lineOf(lines, "programs");
  return list != nullptr ? programsOf(text, *list).entries : std::vector<Entry>();
}

bool isOurs(const Entry& entry) {
  return entry.programName() == ourProgram;
}

// The number of the first entry that satisfies the condition; noEntry where none does.
long numberOf(const std::vector<Entry>& entries, const std::function<bool(const Entry&)>& condition) {
  const auto found = std::find_if(entries.begin(), entries.end(), condition);
  return found == entries.end() ? noEntry : static_cast<long>(found - entries.begin());
}

std::optional<std::string> rawValueOf(const std::string& text, std::string_view key) {
  const auto lines = linesOf(text);
  const Line* line = lineOf(lines, key);
  return line != nullptr ? std::optional(rawValue(text, *line)) : std::nullopt;
}

std::string plainValueOf(const std::string& text, std::string_view key) {
  const auto lines = linesOf(text);
  const Line* line = lineOf(lines, key);
  return line != nullptr ? plainValue(text, *line) : "";
}

// The number that `selected` names; noEntry where it is none.
long selectedEntry(const std::string& text) {
  const std::string value = plainValueOf(text, "selected");
  long number = noEntry;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
  return error == std::errc{} && end == value.data() + value.size() && number >= 0 ? number : noEntry;
}

bool isModeOne(const std::string& text) {
  std::string mode = plainValueOf(text, "mode");
  std::transform(mode.begin(), mode.end(), mode.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
  });
  return mode == "one";
}

// How many entries before this number are ours.
long oursBefore(const std::vector<Entry>& entries, long number) {
  const auto end = entries.begin() + std::clamp<long>(number, 0, static_cast<long>(entries.size()));
  return std::count_if(entries.begin(), end, isOurs);
}

bool isEntryOurs(const std::vector<Entry>& entries, long number) {
  return number >= 0 && number < static_cast<long>(entries.size()) &&
         isOurs(entries[static_cast<std::size_t>(number)]);
}

ChoiceBefore choiceOf(const std::string& text) {
  ChoiceBefore choice{.mode = rawValueOf(text, "mode"), .selected = rawValueOf(text, "selected")};
  const auto entries = entriesOf(text);
  const long selected = selectedEntry(text);
  if (isEntryOurs(entries, selected)) {
    choice.selected = std::to_string(noEntry);
  } else if (selected != noEntry && oursBefore(entries, selected) > 0) {
    choice.selected = std::to_string(selected - oursBefore(entries, selected));
  }
  return choice;
}

void restore(std::string& text, std::string_view key, const std::optional<std::string>& value) {
  if (value) {
    setValue(text, key, *value);
  } else {
    removeLine(text, key);
  }
}

}  // namespace

Chosen choose(const std::string& text, const std::string& command,
              const std::function<bool(const std::string& program)>& canStart) {
  Chosen chosen{.text = text, .before = choiceOf(text)};
  const auto entries = entriesOf(text);
  const auto isUsable = [&](const Entry& entry) {
    return isOurs(entry) && (entry.has("--root") || entry.has("-root")) && canStart(entry.program());
  };
  long number = numberOf(entries, isUsable);
  if (number == noEntry) {
    appendEntry(chosen.text, command);
    number = static_cast<long>(entries.size());
  }
  if (!isModeOne(text)) {
    setValue(chosen.text, "mode", "one");
  }
  if (number != selectedEntry(text)) {
    setValue(chosen.text, "selected", std::to_string(number));
  }
  return chosen;
}

std::string takeOut(std::string text, const std::optional<ChoiceBefore>& before) {
  const auto entries = entriesOf(text);
  const long selected = selectedEntry(text);
  const long shift = oursBefore(entries, selected);
  if (isEntryOurs(entries, selected)) {
    const ChoiceBefore choice = before.value_or(ChoiceBefore{.mode = "random", .selected = "-1"});
    restore(text, "selected", choice.selected);
    if (isModeOne(text)) {
      restore(text, "mode", choice.mode);
    }
  } else if (shift > 0) {
    setValue(text, "selected", std::to_string(selected - shift));
  }
  for (std::size_t number = entries.size(); number > 0; --number) {
    if (isOurs(entries[number - 1])) {
      removeEntry(text, number - 1);
    }
  }
  return text;
}

bool isListed(const std::string& text) {
  const auto entries = entriesOf(text);
  return std::any_of(entries.begin(), entries.end(), isOurs);
}

bool isListBroken(const std::string& text) {
  const auto lines = linesOf(text);
  const Line* list = lineOf(lines, "programs");
  return list != nullptr && list->end > list->afterColon && text[list->end - 1] == '\\' &&
         list->end < text.size() && text[list->end] == '\r';
}

}  // namespace xscreensaver
