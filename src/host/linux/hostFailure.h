// Why the program cannot run, in words for whoever started it.
#pragma once

#include <stdexcept>

// what() is one line that says what is wrong and what to do about it.
class HostFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
