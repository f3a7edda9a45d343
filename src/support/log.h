// The program's log: plain lines in one file, each opened, appended and closed on its own, so that a crash loses none.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "support/clock.h"

#if defined(__GNUC__)
#define XPL_PRINTF_LIKE(formatIndex, firstArgument) __attribute__((format(printf, formatIndex, firstArgument)))
#else
#define XPL_PRINTF_LIKE(formatIndex, firstArgument)
#endif

// Formats printf-style; a result of 8000 bytes or more is cut to 7999.
std::string stringFormat(const char* format, ...) XPL_PRINTF_LIKE(1, 2);

// A writer of one level. Writing never fails loudly: an entry that cannot be written is lost.
// Callable from any thread.
class xplLogLevel {
 public:
  explicit xplLogLevel(const char* prefix) : m_prefix(prefix) {}

  // Writes one entry.
  void add(std::string_view text);
  // Formats printf-style (as stringFormat does) and writes one entry.
  void addf(const char* format, ...) XPL_PRINTF_LIKE(2, 3);

  // True until this level has written its first entry since setPath.
  bool isEmpty() const { return m_isEmpty; }
  // An empty path makes the level drop its entries.
  void setPath(const std::string& path);
  const std::string& path() const { return m_path; }

  // Deliberate: nothing in the program sets this, so that every level writes whether or not the file exists.
  bool onlyIfFileExists = false;
  // When set, every line also goes to the debugger's output.
  bool echoToDebugger = false;

 private:
  std::string m_prefix;
  std::string m_path;
  bool m_isEmpty = true;
};

// The three writers of the process. They drop entries while no xplLog lives.
xplLogLevel& logError();
xplLogLevel& logWarning();
xplLogLevel& logInfo();

// The log of a run: empties the file, writes the opening entries, and the closing one when it goes.
// There is one at a time; a second one takes the writers over and gives them back.
class xplLog {
 public:
  // applicationName: the file is the temporary folder, then this name (the program's own file name where it is
  // empty), then ".xplLog.txt". The two flags copy the previous run's log to the desktop before it is emptied.
  xplLog(const std::string& applicationName, bool copyIfUnfinished, bool copyIfErrors);
  ~xplLog();
  xplLog(const xplLog&) = delete;
  xplLog& operator=(const xplLog&) = delete;

  const std::string& path() const { return m_path; }

 private:
  std::string m_path;
};

// The indentation of entries: one mark a step, none at 0 and below.
int xplLogIndentation();

// Logs a start word and a name now, and an end word and the name when it goes; entries between are indented.
class logBlockOfCode {
 public:
  logBlockOfCode(std::string name, const char* startWord, const char* endWord);
  ~logBlockOfCode();
  logBlockOfCode(const logBlockOfCode&) = delete;
  logBlockOfCode& operator=(const logBlockOfCode&) = delete;

 protected:
  std::string m_name;

 private:
  const char* m_endWord;
};

// A block around a function: "Entering" and "Exiting".
class logFunctionLife : public logBlockOfCode {
 public:
  explicit logFunctionLife(std::string name) : logBlockOfCode(std::move(name), "Entering", "Exiting") {}
};

// A member that shows its owner's life: "creating" and "destroying".
class logObjectLife : public logBlockOfCode {
 public:
  explicit logObjectLife(std::string name) : logBlockOfCode(std::move(name), "creating", "destroying") {}
};

// A function's block whose closing entry ends with the time that it took, in seconds.
class logTimeCountrer : public logFunctionLife {
 public:
  explicit logTimeCountrer(std::string name);
  ~logTimeCountrer();

 private:
  xplInstant m_start;
};
