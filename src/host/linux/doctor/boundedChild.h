// Runs something in a process of its own that is ended when it takes too long.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

// What the child wrote, at most 64 KiB, where it ended with exit code 0 within this time; nothing otherwise,
// and then it is gone too. The program must have no other thread yet.
//
// The work gets the descriptor to write to, and returns its exit code.
std::optional<std::string> runBounded(int milliseconds, const std::function<int(int output)>& work);
// A command: its program, looked up on the PATH, and arguments. Its standard error goes nowhere.
std::optional<std::string> runBounded(int milliseconds, std::vector<std::string> command);
