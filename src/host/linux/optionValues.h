// Reads the values that options of the command line take.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

inline constexpr int largestSide = 16384;  // pixels; what a pixmap of X11 can hold with room to spare

// The X11 id of a window, decimal or hexadecimal with 0x; nothing where the text is anything else.
std::optional<std::uint32_t> windowIdOf(std::string_view text);

struct WindowSize {
  int width, height;  // pixels, each in [1, largestSide]
};

// WIDTHxHEIGHT; nothing where the text is anything else.
std::optional<WindowSize> windowSizeOf(std::string_view text);
