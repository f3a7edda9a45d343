// The program's log: plain lines in one file, each opened, appended and closed on its own, so that a crash
// loses none.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "support/timeCounter.h"

#if defined(__clang__)
#define XPL_PRINTF_LIKE(formatIndex, firstArgument) \
  __attribute__((format(printf, formatIndex, firstArgument)))
#elif defined( \
    __GNUC__)  // gnu_printf: the C++ library brings its own formatting where the platform's falls short
#define XPL_PRINTF_LIKE(formatIndex, firstArgument) \
  __attribute__((format(gnu_printf, formatIndex, firstArgument)))
#else
#define XPL_PRINTF_LIKE(formatIndex, firstArgument)
#endif

// Formats printf-style; a result of 8000 bytes or more is cut to 7999.
std::string stringFormat(const char* format, ...) XPL_PRINTF_LIKE(1, 2);

// A writer of one level. Writing never fails loudly: an entry that cannot be written is lost.
// add, addf and isEmpty may be called from any thread; the rest only while no other thread writes.
class xplLogLevel {
 public:
  explicit xplLogLevel(const char* prefix) : m_prefix(prefix) {}

  // Writes one entry.
  void add(std::string_view text);
  // Formats printf-style (as stringFormat does) and writes one entry.
  void addf(const char* format, ...) XPL_PRINTF_LIKE(2, 3);

  // True until this level has written its first entry since setPath.
  bool isEmpty() const { return m_isEmpty.load(std::memory_order_relaxed); }
  // An empty path makes the level drop its entries.
  void setPath(const std::string& path);
  const std::string& path() const { return m_path; }

  // Deliberate: nothing in the program sets this, so that every level writes whether or not the file exists.
  // A log that its user deletes comes back with the next entry. Do not turn it on by default.
  bool onlyIfFileExists = false;
  // When set, every line also goes to the debugger's output.
  bool echoToDebugger = false;

 private:
  friend class logBlockOfCode;
  friend class xplLog;
  friend int xplLogIndentation();

  // Shared by all levels. No lock: the worst that two threads can meet is an entry one step too far in or
  // out.
  static std::atomic<int> m_IdentLevel;
  static std::atomic<std::int64_t> m_lastStampedSecond;

  std::string timestampLine() const;

  const char* m_prefix;
  std::string m_path;
  std::atomic<bool> m_isEmpty{true};
};

// The three writers of the process. They drop entries while no xplLog lives.
xplLogLevel& logError();
xplLogLevel& logWarning();
xplLogLevel& logInfo();

// The log of a run: empties the file, writes the opening entries, and the closing one when it goes.
// There is one at a time; a second one takes the writers over and gives them back as they were. Made and
// destroyed while no other thread writes.
class xplLog {
 public:
  // applicationName: the file is the temporary folder, then this name (the program's own file name where it
  // is empty), then ".xplLog.txt". The two flags copy the previous run's log to the desktop before it is
  // emptied.
  xplLog(const std::string& applicationName, bool copyIfUnfinished, bool copyIfErrors);
  ~xplLog();
  xplLog(const xplLog&) = delete;
  xplLog& operator=(const xplLog&) = delete;

  const std::string& path() const { return m_path; }

 private:
  // What a level was before this log took it over.
  struct Previous {
    std::string path;
    bool isEmpty;
    bool onlyIfFileExists;
    bool echoToDebugger;
  };
  static Previous takeOver(xplLogLevel& level, const std::string& path);
  static void giveBack(xplLogLevel& level, const Previous& previous);
  void copyPreviousRun(bool copyIfUnfinished, bool copyIfErrors) const;
  void copyToDesktop() const;

  std::string m_path;
  std::array<Previous, 3> m_previous;
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
  // The two halves of a block: its entry and the step of indentation after or before it.
  static void start(const char* word, const std::string& name);
  static void end(const char* word, const std::string& name);

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
  xplTimeCounter m_counter;
};
