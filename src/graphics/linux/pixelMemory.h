// The memory behind a surface; a native window may supply its own kind, such as memory shared with the
// display.
#pragma once

#include <cstddef>
#include <cstdint>

class PixelMemory {
 public:
  virtual ~PixelMemory() = default;
  // Row by row from the top, stride() words to a row; 32 bits a pixel, blue in the lowest byte. Aligned to 16
  // bytes.
  virtual std::uint32_t* pixels() = 0;
  virtual const std::uint32_t* pixels() const = 0;
  virtual std::size_t stride() const = 0;  // words, at least width()
  virtual int width() const = 0;           // pixels, at least 0
  virtual int height() const = 0;          // pixels, at least 0
};
