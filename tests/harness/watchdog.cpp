// Implements the watchdog with a thread that waits for the end of each test.
#include "harness/watchdog.h"

#include <cstdio>
#include <cstdlib>

Watchdog::Watchdog(std::chrono::seconds longest) : m_longest(longest), m_thread([this] { watch(); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(m_mutex);
    m_shallEnd = true;
  }
  m_changed.notify_all();
  m_thread.join();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
  setTest(std::string(test.test_suite_name()) + "." + test.name());
}

void Watchdog::OnTestEnd(const testing::TestInfo& /*test*/) {
  setTest({});
}

void Watchdog::setTest(const std::string& name) {
  {
    const std::lock_guard lock(m_mutex);
    m_test = name;
    ++m_count;
  }
  m_changed.notify_all();
}

void Watchdog::watch() {
  std::unique_lock lock(m_mutex);
  while (!m_shallEnd) {
    const unsigned count = m_count;
    const auto hasChanged = [&] { return m_shallEnd || m_count != count; };
    if (m_test.empty()) {
      m_changed.wait(lock, hasChanged);
    } else if (!m_changed.wait_for(lock, m_longest, hasChanged)) {
      std::fprintf(stderr, "%s has not ended after %lld seconds: it hangs\n", m_test.c_str(),
                   static_cast<long long>(m_longest.count()));
      std::_Exit(EXIT_FAILURE);
    }
  }
}
