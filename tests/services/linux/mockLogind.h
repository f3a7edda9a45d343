// A system bus of a test's own with a logind that only remembers what it is asked.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include <sys/types.h>

#include "support/linux/temporaryEnvironment.h"

// Stands in the place of the machine's bus while it lives. Starting it takes a moment.
class MockLogind {
 public:
  // kind: "grant" gives every inhibitor, "refuse" none, "late" one after 0.4 seconds; "none" is a bus without
  // logind.
  explicit MockLogind(const char* kind);
  ~MockLogind();
  MockLogind(const MockLogind&) = delete;
  MockLogind& operator=(const MockLogind&) = delete;

  // The inhibitors that are held, as "what|who|why|mode".
  std::vector<std::string> inhibitors();
  // True when none is held; waits for it a while.
  bool isFree();
  // True once a single inhibitor is held, within the same time.
  bool holdsOne();

 private:
  void tell(const char* line);
  std::string hear();

  TemporaryEnvironment m_environment;
  pid_t m_process = -1;
  std::FILE* m_input = nullptr;
  std::FILE* m_output = nullptr;
};
