// Implements the fixture with folders of its own.
#include "harness/privateFolders.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

#include "support/fileSystem.h"
#include "support/random.h"
#include "support/settings.h"

namespace {

// A new folder. Making one is atomic, so of several test programs that run at once each gets its own.
std::string makeFolder() {
  for (unsigned number = 1;; ++number) {
    const auto path = std::filesystem::temp_directory_path() / ("lunaria-test-" + std::to_string(number));
    // Another program may remove a folder of this name while it is looked at; then it counts as taken.
    std::error_code error;
    if (std::filesystem::create_directory(path, error)) {
      return path.string();
    }
    if (error && error != std::errc::file_exists) {
      throw std::filesystem::filesystem_error("no folder for a test", path, error);
    }
  }
}

struct Entry {
  std::string level;
  std::string text;
};

// Splits the log into entries: a line that starts with no level belongs to the entry before it, a stamp to
// none.
std::vector<Entry> entriesOf(const std::string& log) {
  std::vector<Entry> entries;
  std::istringstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    const auto mark = line.find(">\t");
    if (line.rfind("     \t", 0) == 0) {
      continue;
    }
    if (mark == std::string::npos || mark > 7) {
      if (!entries.empty()) {
        entries.back().text += "\n" + line;
      }
      continue;
    }
    std::string text = line.substr(mark + 2);
    while (text.rfind("| ", 0) == 0) {
      text.erase(0, 2);
    }
    entries.push_back({line.substr(0, mark), text});
  }
  return entries;
}

}  // namespace

PrivateFolders::PrivateFolders() : m_root(makeFolder()) {
  xplCloseSettings();
  xplFileSystemMini::redirectFolders(m_root);
  xplRandom::seed(1);
  m_log = std::make_unique<xplLog>("Lunaria", true, true);
}

PrivateFolders::~PrivateFolders() {
  m_log.reset();
  xplCloseSettings();
  xplFileSystemMini::redirectFolders("");
  std::error_code ignored;  // a file that Wine still holds open is no failure of the test
  std::filesystem::remove_all(m_root, ignored);
}

std::string PrivateFolders::logText() const {
  std::string text = readFile(m_log->path());
  std::erase(text, '\r');
  return text;
}

std::vector<std::string> PrivateFolders::logEntries() const {
  std::vector<std::string> texts;
  for (const auto& entry : entriesOf(logText())) {
    texts.push_back(entry.text);
  }
  return texts;
}

void PrivateFolders::setLocalTime(int hour, int minute, int second) {
  std::tm local = *xplClock::localTime(clock.now().seconds);
  local.tm_hour = hour;
  local.tm_min = minute;
  local.tm_sec = second;
  local.tm_isdst = -1;
  clock.set({std::mktime(&local), 0});
}

int PrivateFolders::countEntriesWith(const std::string& part) const {
  int count = 0;
  for (const std::string& entry : logEntries()) {
    count += entry.find(part) != std::string::npos ? 1 : 0;
  }
  return count;
}

int PrivateFolders::countEntries(const std::string& text, const std::string& level) const {
  int count = 0;
  for (const auto& entry : entriesOf(logText())) {
    count += entry.text == text && (level.empty() || entry.level == level) ? 1 : 0;
  }
  return count;
}

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << content;
}

std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}
