// Starts the settings sheet, which is a program of its own on Linux.
#pragma once

#include <string>

// Runs the program `name` that lies beside this one, or else on the PATH, without arguments, and returns when
// it has ended. Throws HostFailure where it cannot be started or ends with a failure.
void runConfigureProgram(const std::string& name);
