// Implements the scoped loggers.
#include "support/assertion.h"
#include "support/log.h"

void logBlockOfCode::start(const char* word, const std::string& name) {
  logInfo().addf("%s: %s", word, name.c_str());
  xplLogLevel::m_IdentLevel.fetch_add(1, std::memory_order_relaxed);
}

// Deliberate: an end too many leaves the level below zero, and the entries after it lose their marks until
// starts make up for it. The log shows the mistake; do not clamp the level at zero.
void logBlockOfCode::end(const char* word, const std::string& name) {
  [[maybe_unused]] const int m_IdentLevel =
      xplLogLevel::m_IdentLevel.fetch_sub(1, std::memory_order_relaxed) - 1;
  xplAssert(m_IdentLevel >= 0, "#9541: reducing log ident to <0", "io.xplLog");
  logInfo().addf("%s: %s", word, name.c_str());
}

logBlockOfCode::logBlockOfCode(std::string name, const char* startWord, const char* endWord)
    : m_name(std::move(name)), m_endWord(endWord) {
  start(startWord, m_name);
}

logBlockOfCode::~logBlockOfCode() {
  end(m_endWord, m_name);
}

logTimeCountrer::logTimeCountrer(std::string name) : logFunctionLife(std::move(name)) {}

logTimeCountrer::~logTimeCountrer() {
  m_name += stringFormat(". Duration:%.3f sec", m_counter.seconds());
}
