// Reads the user's own quotes.
#include <deque>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

#include "quotes/quotes.h"
#include "support/fileSystem.h"
#include "support/log.h"

namespace {

constexpr const char* folderName = "Lunaria software";
constexpr const char* fileName = "userQuotes.txt";

// More quotes of the user than this are not taken, since chance would never choose them: the built-in ones
// before them in the list can only become fewer. Without an end to it a file of 100 MB could hold up the
// start for minutes, and fill the disk with its log.
constexpr std::size_t mostUserQuotes = xplVectorAsDB<sQuote>::reachable;

// Keeps a text for the life of the process: quotes hold pointers to it, and are shown until the very end.
// So the store is given up on purpose, and its elements never move.
const char* kept(std::string text) {
  static std::deque<std::string>* const texts = std::make_unique<std::deque<std::string>>().release();
  return texts->emplace_back(std::move(text)).c_str();
}

// The next line without its end ("\n" or "\r\n"); false at the end of the file. Read byte by byte rather than
// in the platform's text mode, so that a file moved to the other platform holds the same quotes there.
bool readLine(std::ifstream& file, std::string& line) {
  if (!std::getline(file, line)) {
    return false;
  }
  if (!file.eof() && !line.empty() && line.back() == '\r') {
    line.pop_back();
  }
  return true;
}

}  // namespace

std::string cQuotes::userQuotesFilePath() {
  const std::string userData = xplFileSystemMini::getFolder_UserData();
  if (userData.empty()) {
    return "";
  }
  const std::string folder = xplFileSystemMini::joinPath(userData, folderName);
  if (!xplFileSystemMini::folderExists(folder)) {
    xplFileSystemMini::createFolder(folder);
  }
  std::string path = xplFileSystemMini::joinPath(folder, fileName);
  if (!xplFileSystemMini::fileExists(path) && !xplFileSystemMini::emptyFile(path)) {
    logWarning().addf("No file for user quotes could be made at:%s", path.c_str());
  }
  return path;
}

void cQuotes::loadUserQuotes(xplVectorAsDB<sQuote>& list) {
  const std::string path = userQuotesFilePath();
  logInfo().addf("loading user quotes from file:%s", path.c_str());
  if (!xplFileSystemMini::fileExists(path)) {
    return;  // opening what is no file could wait for ever: a pipe has no writer
  }
  std::ifstream file(path, std::ios::binary);
  std::size_t count = 0;
  for (std::string line; readLine(file, line);) {
    if (line.empty()) {
      continue;
    }
    if (count == mostUserQuotes) {
      logWarning().addf("Only the first %i user quotes are taken", static_cast<int>(mostUserQuotes));
      break;
    }
    ++count;
    const char* text = kept(line);
    logInfo().addf("Adding user quote:%.8000s", text);  // the log cuts longer entries anyway
    list.append({quoteCategory::user, text});
  }
}
