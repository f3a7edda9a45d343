// The command line of lunaria-render.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct RenderOptions {
  int width = 1920;   // pixels, in [1, 16384]
  int height = 1080;  // pixels, in [1, 16384]
  std::uint32_t seed = 1;
  std::optional<std::int64_t> time;  // seconds since 1970 UTC; absent: now
  double atSeconds = 0.0;     // how long the sky has run at the first frame that is written, at least 0
  std::optional<int> frames;  // how many frames are written, at least 1; absent: one
  std::string settingsFile;   // empty: the defaults
  std::string quotesFile;     // empty: none
  bool preview = false;
  bool hashes = false;
  bool raw = false;
  std::string output;  // a file, "-" for standard output; empty only with --hashes
};

// What the command line asks for: options to run with, or a text to print and the exit code to end with.
struct RenderRequest {
  std::optional<RenderOptions> options;
  std::string message;
  int exitCode = 0;
};

// arguments: without the program's name.
RenderRequest parseRenderOptions(const std::vector<std::string>& arguments);

// Seconds since 1970 UTC of "YYYY-MM-DDThh:mm[:ss][Z]"; nothing where the text is no such moment.
std::optional<std::int64_t> parseIsoTime(const std::string& text);
