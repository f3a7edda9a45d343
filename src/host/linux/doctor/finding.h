// What a check of the system finds.
#pragma once

#include <string>
#include <vector>

struct Finding {
  std::string text;  // one or more sentences; what stands after a line end, such as a path, is not broken
  std::string cure;  // what to do about it, on one line; empty where nothing is wrong

  bool isProblem() const { return !cure.empty(); }
  friend bool operator==(const Finding&, const Finding&) = default;
};

using Findings = std::vector<Finding>;

// The findings about one matter.
struct Chapter {
  std::string title;
  Findings findings;
};
