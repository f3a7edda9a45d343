// Pixels in memory that the compositor has mapped too, and whether it still reads them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "graphics/linux/pixelMemory.h"
#include "host/linux/wayland/proxy.h"
#include "host/linux/wayland/tileMarks.h"

class ShmBuffer : public PixelMemory {
 public:
  // place: the part of the picture that it is for, in pixels, not empty. Black at first. Null where there is
  // not that much memory.
  static std::unique_ptr<ShmBuffer> make(wl_shm* sharedMemory, const xplEdges& place);
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

  // What newer frames have changed elsewhere.
  TileMarks& outdated() { return m_outdated; }

 private:
  ShmBuffer(const xplEdges& place, void* address, std::size_t size);

  int m_width;
  int m_height;
  void* m_address;
  std::size_t m_size;  // bytes
  Proxy<wl_buffer> m_buffer;
  bool m_isBeingRead = false;
  TileMarks m_outdated;
};
