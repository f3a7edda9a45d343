// Pixel memory of the process's own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "graphics/linux/pixelMemory.h"

class HeapPixelMemory : public PixelMemory {
 public:
  // Sizes in pixels; below 0 counts as 0. Starts black. Throws std::bad_alloc where there is no memory.
  HeapPixelMemory(int width, int height);

  std::uint32_t* pixels() override { return m_pixels.get(); }
  const std::uint32_t* pixels() const override { return m_pixels.get(); }
  std::size_t stride() const override { return static_cast<std::size_t>(m_width); }
  int width() const override { return m_width; }
  int height() const override { return m_height; }

 private:
  struct Release {
    void operator()(std::uint32_t* pixels) const;
  };

  int m_width;
  int m_height;
  std::unique_ptr<std::uint32_t[], Release> m_pixels;
};
