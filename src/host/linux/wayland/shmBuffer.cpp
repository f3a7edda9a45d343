// Implements memory shared with the compositor.
#include "host/linux/wayland/shmBuffer.h"

#include <climits>

#include <sys/mman.h>

#include "host/linux/frameFile.h"

namespace {

void noteRelease(void* isBeingRead, wl_buffer*) {
  *static_cast<bool*>(isBeingRead) = false;
}

}  // namespace

std::unique_ptr<ShmBuffer> ShmBuffer::make(wl_shm* sharedMemory, const xplEdges& place) {
  static const wl_buffer_listener listener{noteRelease};
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;
  const std::size_t size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
  if (size > INT_MAX) {
    return nullptr;  // more than the protocol can count
  }
  const FileDescriptor file = makeFrameFile(size);
  if (!file.isOpen()) {
    return nullptr;
  }
  void* address = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.get(), 0);
  if (address == MAP_FAILED) {
    return nullptr;
  }
  std::unique_ptr<ShmBuffer> buffer(new ShmBuffer(place, address, size));
  const Proxy<wl_shm_pool> pool(wl_shm_create_pool(sharedMemory, file.get(), static_cast<int>(size)));
  buffer->m_buffer.reset(
      wl_shm_pool_create_buffer(pool.get(), 0, width, height, width * 4, WL_SHM_FORMAT_XRGB8888));
  wl_buffer_add_listener(buffer->m_buffer.get(), &listener, &buffer->m_isBeingRead);
  return buffer;
}

ShmBuffer::ShmBuffer(const xplEdges& place, void* address, std::size_t size)
    : m_width(place.right - place.left),
      m_height(place.bottom - place.top),
      m_address(address),
      m_size(size),
      m_outdated(m_width, m_height, place.left, place.top) {}

ShmBuffer::~ShmBuffer() {
  ::munmap(m_address, m_size);
}

void ShmBuffer::attachTo(wl_surface* surface) {
  wl_surface_attach(surface, m_buffer.get(), 0, 0);
  m_isBeingRead = true;
}
