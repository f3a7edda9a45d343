// Pixels in memory that the compositor has mapped too, and whether it still reads them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "graphics/linux/edges.h"
#include "graphics/linux/pixelMemory.h"
#include "host/linux/wayland/proxy.h"

class ShmBuffer : public PixelMemory {
 public:
  // Black at first. Sizes in pixels, above 0. Null where there is not that much memory.
  static std::unique_ptr<ShmBuffer> make(wl_shm* sharedMemory, int width, int height);
  ~ShmBuffer() override;
  ShmBuffer(const ShmBuffer&) = delete;
  ShmBuffer& operator=(const ShmBuffer&) = delete;

  std::uint32_t* pixels() override { return static_cast<std::uint32_t*>(m_address); }
  const std::uint32_t* pixels() const override { return static_cast<const std::uint32_t*>(m_address); }
  std::size_t stride() const override { return static_cast<std::size_t>(m_width); }
  int width() const override { return m_width; }
  int height() const override { return m_height; }

  // Shows it on the surface with its next commit; from now on the compositor reads it, until it says that it
  // does not.
  void attachTo(wl_surface* surface);
  bool isBeingRead() const { return m_isBeingRead; }

  // Parts that newer frames have changed elsewhere.
  std::vector<xplEdges>& outdated() { return m_outdated; }

 private:
  ShmBuffer(int width, int height, void* address, std::size_t size);

  int m_width;
  int m_height;
  void* m_address;
  std::size_t m_size;  // bytes
  Proxy<wl_buffer> m_buffer;
  bool m_isBeingRead = false;
  std::vector<xplEdges> m_outdated;
};
