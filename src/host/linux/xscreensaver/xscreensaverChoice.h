// Lunaria in the text of XScreenSaver's preferences file: put into the list and chosen, and taken out again.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace xscreensaver {

// What the file said about the choice before Lunaria was chosen, byte for byte; nothing for a line that was
// not there. Numbers are those that hold once Lunaria is out of the list.
struct ChoiceBefore {
  std::optional<std::string> mode;
  std::optional<std::string> selected;
};

struct Chosen {
  std::string text;     // the new text; the old one where Lunaria was chosen already
  ChoiceBefore before;  // of the old text
};

// Adds `command` to the list's end and chooses it alone. An entry of Lunaria that is there and that can be
// started (canStart gets its program, as it stands there) with --root is chosen as it is.
Chosen choose(const std::string& text, const std::string& command,
              const std::function<bool(const std::string& program)>& canStart);

// Takes every entry of Lunaria out. Where Lunaria is chosen, the choice becomes what it was before; where
// that is not known, XScreenSaver's own default, a random saver. A choice of another saver stays one of that
// saver. takeOut(choose(text).text, choose(text).before) == text for every text in which Lunaria is not.
std::string takeOut(std::string text, const std::optional<ChoiceBefore>& before);

// Whether the list holds an entry of Lunaria.
bool isListed(const std::string& text);

// Whether the list ends a line with a backslash and a line end of Windows: XScreenSaver reads only its first
// line then, and nothing can be added.
bool isListBroken(const std::string& text);

}  // namespace xscreensaver
