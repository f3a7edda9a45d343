// Implements the writers: how one entry is formed and reaches the file.
#include <cstdarg>
#include <cstdio>
#include <memory>

#include "support/fileSystem.h"
#include "support/log.h"

std::atomic<int> xplLogLevel::m_IdentLevel{0};
std::atomic<std::int64_t> xplLogLevel::m_lastStampedSecond{0};

namespace {

constexpr std::size_t formatBufferSize = 8000;
constexpr const char* indentationMark = "| ";

std::string formatList(const char* format, std::va_list arguments) XPL_PRINTF_LIKE(1, 0);

std::string formatList(const char* format, std::va_list arguments) {
  char buffer[formatBufferSize] = "";
  std::vsnprintf(buffer, sizeof buffer, format, arguments);
  return buffer;
}

// Writers are never destroyed: destructors of other statics may still log when the process ends.
xplLogLevel* makeWriter(const char* prefix) {
  return std::make_unique<xplLogLevel>(prefix).release();
}

}  // namespace

std::string stringFormat(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::string text = formatList(format, arguments);
  va_end(arguments);
  return text;
}

xplLogLevel& logError() {
  static xplLogLevel* const writer = makeWriter("ERROR>\t");
  return *writer;
}

xplLogLevel& logWarning() {
  static xplLogLevel* const writer = makeWriter("Warning>\t");
  return *writer;
}

xplLogLevel& logInfo() {
  static xplLogLevel* const writer = makeWriter("Info>\t");
  return *writer;
}

int xplLogIndentation() {
  return xplLogLevel::m_IdentLevel.load(std::memory_order_relaxed);
}

void xplLogLevel::setPath(const std::string& path) {
  m_path = path;
  m_isEmpty.store(true, std::memory_order_relaxed);
}

// The line that goes before the first entry of a second; empty for the entries that follow in it.
std::string xplLogLevel::timestampLine() const {
  const std::int64_t now = xplClock::now();
  if (m_lastStampedSecond.exchange(now, std::memory_order_relaxed) == now) {
    return "";
  }
  const auto local = xplClock::localTime(now);
  if (!local) {
    return "";
  }
  // The date and the time as "%F  %X" gives them in the "C" locale, which a toolkit may have changed
  // meanwhile and one of the platforms does not know in full.
  return stringFormat("     \t%04d-%02d-%02d  %02d:%02d:%02d\n", local->tm_year + 1900, local->tm_mon + 1,
                      local->tm_mday, local->tm_hour, local->tm_min, local->tm_sec);
}

void xplLogLevel::add(std::string_view text) {
  if (m_path.empty()) {
    return;
  }
  if (onlyIfFileExists && !xplFileSystemMini::fileExists(m_path)) {
    return;
  }
  std::string line = timestampLine() + m_prefix;
  for (int level = xplLogIndentation(); level > 0; --level) {
    line += indentationMark;
  }
  line += text;
  line += '\n';
  xplFileSystemMini::appendToFile(m_path, line);
  if (echoToDebugger) {
    xplWriteToDebugger(line.c_str());
  }
  m_isEmpty.store(false, std::memory_order_relaxed);
}

void xplLogLevel::addf(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const std::string text = formatList(format, arguments);
  va_end(arguments);
  add(text);
}
