// Reads the head of a bitmap file, so that what nobody should load is refused before anything is allocated
// for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

struct BitmapHeader {
  // As many bytes from the start of a file as parseBitmapHeader looks at.
  static constexpr std::size_t size = 54;
  static constexpr std::int32_t maxSide = 16384;                          // pixels
  static constexpr std::uint64_t maxPixelBytes = std::uint64_t{1} << 28;  // at 32 bits a pixel

  std::int32_t width = 0;   // pixels, in [1, maxSide]
  std::int32_t height = 0;  // pixels, in [1, maxSide]
  int bitsPerPixel = 0;     // 1, 4, 8, 16, 24 or 32
};

// `start` holds the file's first bytes, fileSize is the length of the whole. Nothing where this is no bitmap,
// where its size is not allowed, or where the file is too short for its pixels.
std::optional<BitmapHeader> parseBitmapHeader(std::span<const std::uint8_t> start, std::uint64_t fileSize);
