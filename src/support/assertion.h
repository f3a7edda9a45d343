// Debug assertions: they report to the log's error writer and never stop the program.
#pragma once

// Writes an error entry with the condition, the text, the source's name and the line. For xplAssert, and for
// the few places whose reported line does not move with the code.
void xplReportFailedAssertion(const char* condition, const char* text, const char* source, int line);

// True in builds whose assertions report.
#ifdef NDEBUG
inline constexpr bool xplAssertionsReport = false;
#else
inline constexpr bool xplAssertionsReport = true;
#endif

// Reports where `condition` is false. The condition is always compiled, and evaluated only in debug builds.
// `text` starts with a tag such as "#8662:" by which a developer finds the place; `source` names the unit.
#define xplAssert(condition, text, source)                          \
  do {                                                              \
    if (xplAssertionsReport && !(condition)) {                      \
      xplReportFailedAssertion(#condition, text, source, __LINE__); \
    }                                                               \
  } while (false)
