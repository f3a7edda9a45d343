// Implements the notes of sessions.
#include "services/builtInAnalytics.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <utility>

#include "support/clock.h"
#include "support/fileSystem.h"
#include "support/log.h"

namespace {

constexpr int done = 0;
constexpr int failed = -1;

// A moment as "yyyy-mm-ddThh:mm:ssZ".
std::string universalTime(std::int64_t seconds) {
  using namespace std::chrono;
  const sys_seconds moment{std::chrono::seconds(seconds)};
  const auto day = floor<days>(moment);
  const year_month_day date(day);
  const hh_mm_ss time(moment - day);
  return stringFormat("%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                      static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                      static_cast<int>(time.seconds().count()));
}

// At most so many bytes of a file; what another program put there may be of any size.
std::string startOfFile(const std::string& path, std::size_t limit) {
  std::ifstream file(path, std::ios::binary);
  std::string content(limit, '\0');
  file.read(content.data(), static_cast<std::streamsize>(limit));
  content.resize(static_cast<std::size_t>(file.gcount()));
  return content;
}

// The younger half of the lines.
std::string youngerHalf(const std::string& lines) {
  const auto end = lines.find('\n', lines.size() / 2);
  return end == std::string::npos ? std::string() : lines.substr(end + 1);
}

// Adds a line of the file's own, and makes room for it where there is none. False, with a message, on
// failure.
bool addLine(const std::string& path, const std::string& line, std::string& message) {
  const std::string before = xplFileSystemMini::fileExists(path)
                                 ? startOfFile(path, BuiltInAnalytics::maxFileSize + 1)
                                 : std::string();
  // On a platform with longer line ends each line is a byte longer in the file than here.
  if (before.size() + line.size() + 2 > BuiltInAnalytics::maxFileSize) {
    return xplFileSystemMini::replaceFile(path, youngerHalf(before) + line + xplFileSystemMini::lineEnd(),
                                          message);
  }
  message = "the file cannot be written";
  return xplFileSystemMini::appendToFile(path, line + "\n");
}

}  // namespace

int BuiltInAnalytics::setFilePath(const std::string& folder) {
  if (!xplFileSystemMini::folderExists(folder)) {
    return invalidPath;
  }
  const std::string path = xplFileSystemMini::joinPath(folder, fileName);
  // Writing nothing tells whether something could be written.
  if (!xplFileSystemMini::appendToFile(path, "")) {
    return accessDenied;
  }
  m_path = path;
  return done;
}

int BuiltInAnalytics::createConfig(const std::string& /*address*/, const std::string& /*productId*/,
                                   const std::string& productVersion, const std::string& buildStamp,
                                   bool /*collectsMore*/) {
  m_product = "version=" + productVersion + " build=" + buildStamp;
  return done;
}

int BuiltInAnalytics::start() {
  m_startTime = xplClock::now();
  return done;
}

int BuiltInAnalytics::stop() {
  if (m_path.empty()) {
    return failed;  // the path's own result said so already
  }
  const std::string line =
      "start=" + universalTime(m_startTime) + " stop=" + universalTime(xplClock::now()) + " " + m_product;
  std::string message;
  if (!addLine(m_path, line, message)) {
    m_errors = m_path + ": " + message;
    return failed;
  }
  return done;
}

std::string BuiltInAnalytics::takeErrors() {
  return std::exchange(m_errors, std::string());
}
