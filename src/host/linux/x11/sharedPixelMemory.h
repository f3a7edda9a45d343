// Pixels in memory that the X display has mapped too, so that it reads a frame without being sent it.
#pragma once

#include <cstddef>
#include <memory>

#include "graphics/linux/pixelMemory.h"
#include "host/linux/fileDescriptor.h"
#include "host/linux/x11/x11Connection.h"

class SharedPixelMemory : public PixelMemory {
 public:
  // Nothing where the display does not take it or there is not that much memory. Sizes in pixels, above 0.
  // The connection is borrowed and must outlive the memory.
  static std::unique_ptr<SharedPixelMemory> make(X11Connection& connection, int width, int height);
  ~SharedPixelMemory() override;
  SharedPixelMemory(const SharedPixelMemory&) = delete;
  SharedPixelMemory& operator=(const SharedPixelMemory&) = delete;

  std::uint32_t* pixels() override { return static_cast<std::uint32_t*>(m_address); }
  const std::uint32_t* pixels() const override { return static_cast<const std::uint32_t*>(m_address); }
  std::size_t stride() const override { return static_cast<std::size_t>(m_width); }
  int width() const override { return m_width; }
  int height() const override { return m_height; }
  // The display's name for it.
  std::uint32_t segment() const { return m_segment; }

 private:
  SharedPixelMemory(X11Connection& connection, int width, int height, void* address, std::size_t size);
  // Hands the file behind the memory to the display.
  bool attach(FileDescriptor file);

  X11Connection& m_connection;
  int m_width;
  int m_height;
  void* m_address;
  std::size_t m_size;  // bytes
  std::uint32_t m_segment;
  bool m_isAttached = false;
};
