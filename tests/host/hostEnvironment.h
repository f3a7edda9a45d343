// What the platform's framework has ready before it sends the first message, made for a test.
#pragma once

#include <memory>

#include "host/platform.h"

// Lives as long as the test's window, which it borrows. The program's arguments are those of a full run.
class HostEnvironment {
 public:
  explicit HostEnvironment(xplWindowHandle window);
  ~HostEnvironment();
  HostEnvironment(const HostEnvironment&) = delete;
  HostEnvironment& operator=(const HostEnvironment&) = delete;

 private:
  struct Parts;
  std::unique_ptr<Parts> m_parts;
};
