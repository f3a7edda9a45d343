// Implements memory shared with the display.
#include "host/linux/x11/sharedPixelMemory.h"

#include <sys/mman.h>
#include <xcb/shm.h>

#include "host/linux/frameFile.h"

std::unique_ptr<SharedPixelMemory> SharedPixelMemory::make(X11Connection& connection, int width, int height) {
  const std::size_t size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
  FileDescriptor file = makeFrameFile(size);
  if (!file.isOpen()) {
    return nullptr;
  }
  void* address = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file.get(), 0);
  if (address == MAP_FAILED) {
    return nullptr;
  }
  std::unique_ptr<SharedPixelMemory> memory(new SharedPixelMemory(connection, width, height, address, size));
  return memory->attach(std::move(file)) ? std::move(memory) : nullptr;
}

SharedPixelMemory::SharedPixelMemory(X11Connection& connection, int width, int height, void* address,
                                     std::size_t size)
    : m_connection(connection),
      m_width(width),
      m_height(height),
      m_address(address),
      m_size(size),
      m_segment(xcb_generate_id(connection.get())) {}

bool SharedPixelMemory::attach(FileDescriptor file) {
  // The display writes into it as well, when it is asked for what a window shows. The descriptor is closed by
  // whoever sends it.
  constexpr std::uint8_t isReadOnly = 0;
  m_isAttached = m_connection.succeeded(
      xcb_shm_attach_fd_checked(m_connection.get(), m_segment, ::dup(file.get()), isReadOnly));
  return m_isAttached;
}

SharedPixelMemory::~SharedPixelMemory() {
  if (m_isAttached) {
    xcb_shm_detach(m_connection.get(), m_segment);
  }
  ::munmap(m_address, m_size);
}
