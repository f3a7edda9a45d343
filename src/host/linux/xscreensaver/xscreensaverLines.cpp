// Implements the reading and setting of lines. What XScreenSaver 6.06 makes of each form was found by having
// it read such files and write them anew.
#include "host/linux/xscreensaver/xscreensaverLines.h"

#include <algorithm>

namespace xscreensaver {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";

bool isBlank(char character) {
  return blanks.find(character) != std::string_view::npos;
}

char small(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// The line feed that ends the line, or the text's size. Any backslash right before a line feed joins, also
// the second of two.
std::size_t endOfJoinedLine(std::string_view text, std::size_t begin) {
  std::size_t lineFeed = text.find('\n', begin);
  while (lineFeed != std::string_view::npos && lineFeed > begin && text[lineFeed - 1] == '\\') {
    lineFeed = text.find('\n', lineFeed + 1);
  }
  return lineFeed == std::string_view::npos ? text.size() : lineFeed;
}

// Finds the key: it stands between the blanks at the line's begin and a colon that follows it at once.
void readKey(std::string_view text, Line& line) {
  std::size_t at = line.begin;
  std::string key;
  while (at < line.end && text[at] != ':') {
    if (joinsLines(text, at)) {
      at += 2;
    } else {
      if (!key.empty() || !isBlank(text[at])) {
        key += small(text[at]);
      }
      ++at;
    }
  }
  line.afterColon = at < line.end ? at + 1 : line.end;
  if (at < line.end && !key.starts_with('#')) {
    line.key = key;
  }
}

}  // namespace

bool joinsLines(std::string_view text, std::size_t offset) {
  return text.substr(offset, 2) == "\\\n";
}

std::string_view trimmed(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
  return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

std::vector<Line> linesOf(std::string_view text) {
  std::vector<Line> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t stop = endOfJoinedLine(text, begin);
    Line line{.key = "", .begin = begin, .afterColon = stop, .end = stop, .next = stop + 1};
    if (stop == text.size()) {
      line.next = stop;
      line.end -= text[stop - 1] == '\\' ? 1U : 0U;
    } else if (stop > begin && text[stop - 1] == '\r') {
      line.end -= 1;
    }
    readKey(text, line);
    lines.push_back(line);
    begin = line.next;
  }
  return lines;
}

const Line* lineOf(const std::vector<Line>& lines, std::string_view key) {
  const auto found =
      std::find_if(lines.rbegin(), lines.rend(), [&](const Line& line) { return line.key == key; });
  return found == lines.rend() ? nullptr : &*found;
}

std::size_t valueBegin(std::string_view text, const Line& line) {
  std::size_t begin = line.afterColon;
  while (begin < line.end && (text[begin] == ' ' || text[begin] == '\t')) {
    ++begin;
  }
  return begin;
}

std::string rawValue(std::string_view text, const Line& line) {
  const std::size_t begin = valueBegin(text, line);
  return std::string(text.substr(begin, line.end - begin));
}

std::string plainValue(std::string_view text, const Line& line) {
  std::string value;
  for (const Piece& piece : piecesOf(text, line.afterColon, line.end)) {
    value += piece.character;
  }
  return std::string(trimmed(value));
}

void setValue(std::string& text, std::string_view key, std::string_view value) {
  const auto lines = linesOf(text);
  if (const Line* line = lineOf(lines, key)) {
    const std::size_t begin = valueBegin(text, *line);
    text.replace(begin, line->end - begin, value);
  } else {
    const std::string added = std::string(key) + ":\t" + std::string(value) + std::string(lineEndOf(text));
    text.insert(lineOf(lines, "programs")->begin, added);
  }
}

void removeLine(std::string& text, std::string_view key) {
  const auto lines = linesOf(text);
  if (const Line* line = lineOf(lines, key)) {
    text.erase(line->begin, line->next - line->begin);
  }
}

std::string_view lineEndOf(std::string_view text) {
  const std::size_t lineFeed = text.find('\n');
  const bool isWindows = lineFeed != std::string_view::npos && lineFeed > 0 && text[lineFeed - 1] == '\r';
  return isWindows ? "\r\n" : "\n";
}

std::vector<Piece> piecesOf(std::string_view text, std::size_t begin, std::size_t end) {
  std::vector<Piece> pieces;
  const auto skipJoins = [&](std::size_t at) {
    while (at < end && joinsLines(text, at)) {
      at += 2;
    }
    return at;
  };
  for (std::size_t at = skipJoins(begin); at < end; at = skipJoins(at)) {
    const std::size_t start = at;
    const bool isEscape = text[at] == '\\';
    at = isEscape ? skipJoins(at + 1) : at;
    if (at >= end) {
      break;  // a backslash that escapes nothing
    }
    const bool endsEntry = isEscape && text[at] == 'n';
    const char meant = endsEntry ? '\n' : isEscape && text[at] == 't' ? '\t' : text[at];
    ++at;
    pieces.push_back({meant, endsEntry, start, at});
  }
  return pieces;
}

}  // namespace xscreensaver
