// Lays the report out.
#include "host/linux/doctor/report.h"

#include <algorithm>
#include <sstream>

#include "host/programVersion.h"

namespace {

constexpr std::size_t lineWidth = 80;  // characters
constexpr char wellMark[] = "  ok       ";
constexpr char problemMark[] = "  PROBLEM  ";
constexpr char cureMark[] = "  Cure:    ";
constexpr std::size_t indentation = sizeof wellMark - 1;

// Every byte of UTF-8 but those that continue a character begins one.
std::size_t charactersOf(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

// The text's words on lines; those after the first begin below the first one's text.
std::string wrapped(const std::string& mark, const std::string& text) {
  std::string page = mark;
  std::size_t column = indentation;
  const std::size_t lineEnd = std::min(text.find('\n'), text.size());
  std::istringstream words(text.substr(0, lineEnd));
  for (std::string word; words >> word;) {
    const std::size_t length = charactersOf(word);
    if (column > indentation && column + 1 + length > lineWidth) {
      page += "\n" + std::string(indentation, ' ');
      column = indentation;
    } else if (column > indentation) {
      page += " ";
      ++column;
    }
    page += word;
    column += length;
  }
  const std::string whole = text.substr(lineEnd);
  return page + (whole.empty() ? "" : "\n" + std::string(indentation, ' ') + whole.substr(1)) + "\n";
}

std::string closingOf(int problems) {
  if (problems == 0) {
    return "All is well.\n";
  }
  return problems == 1 ? "There is 1 problem.\n" : "There are " + std::to_string(problems) + " problems.\n";
}

}  // namespace

int problemsIn(const std::vector<Chapter>& chapters) {
  int problems = 0;
  for (const Chapter& chapter : chapters) {
    problems += static_cast<int>(std::count_if(chapter.findings.begin(), chapter.findings.end(),
                                               [](const Finding& finding) { return finding.isProblem(); }));
  }
  return problems;
}

std::string reportOf(const std::vector<Chapter>& chapters) {
  std::string page = std::string("Lunaria ") + programVersion + " looks at this system\n";
  for (const Chapter& chapter : chapters) {
    page += "\n" + chapter.title + "\n";
    for (const Finding& finding : chapter.findings) {
      page += wrapped(finding.isProblem() ? problemMark : wellMark, finding.text);
      page += finding.isProblem() ? cureMark + finding.cure + "\n" : "";
    }
  }
  return page + "\n" + closingOf(problemsIn(chapters));
}
