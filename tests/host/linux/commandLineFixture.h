// What the tests of the command line share: what is read from words, and the error where there is one.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "host/linux/commandLine.h"

using Mode = HostRequest::Mode;
using Words = std::vector<std::string>;

inline HostRequest requestOf(const Words& words, const std::optional<std::string>& screenSaverWindow = {}) {
  const CommandLine line = parseCommandLine(words, screenSaverWindow);
  const auto* error = std::get_if<CommandLineError>(&line);
  EXPECT_EQ(error, nullptr) << (error ? error->text : "");
  return error ? HostRequest{.mode = Mode::help, .window = {}} : std::get<HostRequest>(line);
}

inline CommandLineError errorOf(const Words& words,
                                const std::optional<std::string>& screenSaverWindow = {}) {
  const CommandLine line = parseCommandLine(words, screenSaverWindow);
  const auto* error = std::get_if<CommandLineError>(&line);
  EXPECT_NE(error, nullptr);
  return error ? *error : CommandLineError{};
}
