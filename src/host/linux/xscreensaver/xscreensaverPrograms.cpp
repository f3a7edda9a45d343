// Implements the reading and changing of the list of savers.
#include "host/linux/xscreensaver/xscreensaverPrograms.h"

#include <algorithm>

namespace xscreensaver {

namespace {

constexpr std::string_view listKey = "programs";

// How XScreenSaver's own settings program pads an entry.
std::string padded(const std::string& command) {
  return "\t\t\t\t" + command + "\t\t\t\t    \\n";
}

std::string madeList(const std::string& command, std::string_view lineEnd) {
  return "programs:" + padded(command) + std::string(lineEnd);
}

// Takes what may stand before a command away: a dash, a visual that ends with a colon, a label in quotes.
std::string_view commandOf(std::string_view entry) {
  entry = trimmed(entry);
  if (entry.starts_with('-')) {
    entry = trimmed(entry.substr(1));
  }
  const std::size_t wordEnd = entry.find_first_of(" \t\":/'");
  if (wordEnd != std::string_view::npos && entry[wordEnd] == ':') {
    entry = trimmed(entry.substr(wordEnd + 1));
  }
  if (entry.starts_with('"')) {
    const std::size_t quote = entry.find('"', 1);
    entry = quote == std::string_view::npos ? std::string_view() : trimmed(entry.substr(quote + 1));
  }
  return entry;
}

// Reads a value piece by piece.
class ListReader {
 public:
  ListReader(std::string_view text, const Line& line) : m_text(text), m_line(line) {
    m_entry.begin = line.afterColon;
  }

  ProgramList read() {
    for (const Piece& piece : piecesOf(m_text, m_line.afterColon, m_line.end)) {
      if (piece.endsEntry) {
        endEntry(piece);
      } else {
        addToEntry(piece);
      }
    }
    const bool isOpen = !trimmed(m_words).empty();
    m_list.isEnded = !isOpen;
    m_list.appendAt = isOpen || !m_entry.endBefore ? m_line.end : m_entry.begin;
    m_entry.textEnd = m_entry.end = m_line.end;
    keepEntry();
    return m_list;
  }

 private:
  void addToEntry(const Piece& piece) {
    if (trimmed(m_words).empty()) {
      m_entry.textBegin = piece.begin;
    }
    m_words += piece.character;
  }

  void endEntry(const Piece& mark) {
    m_entry.textEnd = mark.begin;
    m_entry.end = mark.end + (joinsLines(m_text, mark.end) && mark.end < m_line.end ? 2 : 0);
    keepEntry();
    m_entry = Entry{.command = "", .begin = m_entry.end, .endBefore = mark.begin};
    m_words.clear();
  }

  void keepEntry() {
    if (trimmed(m_words).empty()) {
      return;
    }
    m_entry.command = commandOf(m_words);
    m_list.entries.push_back(m_entry);
  }

  std::string_view m_text;
  const Line& m_line;
  ProgramList m_list;
  Entry m_entry;
  std::string m_words;  // of the entry that is read
};

// Where the entry's own bytes begin: joined lines before the one that its text begins in belong to the list.
std::size_t ownBegin(std::string_view text, const Entry& entry) {
  const std::size_t lineFeed = text.substr(0, entry.textBegin).rfind('\n');
  return lineFeed == std::string_view::npos ? entry.begin : std::max(entry.begin, lineFeed + 1);
}

// One blank before what goes was put there with it.
std::size_t withBlankBefore(std::string_view text, std::size_t begin, std::size_t least) {
  return begin > least && text[begin - 1] == ' ' ? begin - 1 : begin;
}

void eraseEntry(std::string& text, const Line& line, const Entry& entry) {
  std::size_t begin = ownBegin(text, entry);
  if (entry.end == entry.textEnd) {
    // Not ended: what ended the one before goes instead.
    begin = entry.endBefore.value_or(entry.textBegin);
    begin = withBlankBefore(text, begin, line.afterColon);
  }
  text.erase(begin, entry.end - begin);
}

}  // namespace

std::string Entry::program() const {
  return command.substr(0, command.find_first_of(" \t\n\r"));
}

std::string Entry::programName() const {
  const std::string path = program();
  return path.substr(path.rfind('/') + 1);
}

bool Entry::has(std::string_view word) const {
  const std::string words = " " + command + " ";
  for (std::size_t at = words.find(word); at != std::string::npos; at = words.find(word, at + 1)) {
    if (trimmed(words.substr(at - 1, 1)).empty() && trimmed(words.substr(at + word.size(), 1)).empty()) {
      return true;
    }
  }
  return false;
}

ProgramList programsOf(std::string_view text, const Line& line) {
  return ListReader(text, line).read();
}

void appendEntry(std::string& text, const std::string& command) {
  const auto lines = linesOf(text);
  const Line* line = lineOf(lines, listKey);
  if (line == nullptr) {
    text.insert(0, madeList(command, lineEndOf(text)));
    return;
  }
  const ProgramList list = programsOf(text, *line);
  const std::size_t at = list.appendAt;
  if (!list.isEnded) {
    text.insert(at, " \\n " + command);
  } else if (at > line->begin && text[at - 1] == '\n') {
    text.insert(at, padded(command) + "\\\n");
  } else {
    // Behind the mark that ends the entry before, or where no entry is yet.
    text.insert(at, " " + command + (text[at - 1] == 'n' ? " \\n" : ""));
  }
}

void removeEntry(std::string& text, std::size_t number) {
  const auto lines = linesOf(text);
  const Line* line = lineOf(lines, listKey);
  const ProgramList list = programsOf(text, *line);
  const Entry& entry = list.entries.at(number);
  const std::string whole = text.substr(line->begin, line->next - line->begin);
  if (whole == madeList(entry.command, lineEndOf(text))) {
    text.erase(line->begin, whole.size());
    return;
  }
  eraseEntry(text, *line, entry);
}

}  // namespace xscreensaver
