// Implements the buffers of a surface.
#include "host/linux/wayland/frameBuffers.h"

#include <algorithm>

#include "host/linux/wayland/pictureParts.h"

FrameBuffers::FrameBuffers(wl_shm* sharedMemory, int width, int height)
    : m_sharedMemory(sharedMemory), m_width(width), m_height(height) {
  m_buffers.reserve(most);
}

bool FrameBuffers::hasRoom() const {
  return m_drawing != nullptr || m_buffers.size() < most ||
         std::any_of(m_buffers.begin(), m_buffers.end(), [](const auto& b) { return !b->isBeingRead(); });
}

ShmBuffer* FrameBuffers::pick() {
  // The one shown last needs nothing copied.
  if (m_shown != nullptr && !m_shown->isBeingRead()) {
    return m_shown;
  }
  const auto free = std::find_if(m_buffers.begin(), m_buffers.end(),
                                 [](const auto& buffer) { return !buffer->isBeingRead(); });
  if (free != m_buffers.end()) {
    return free->get();
  }
  if (m_buffers.size() < most) {
    if (auto added = ShmBuffer::make(m_sharedMemory, m_width, m_height)) {
      added->outdated().push_back({0, 0, m_width, m_height});
      m_buffers.push_back(std::move(added));
      return m_buffers.back().get();
    }
  }
  return nullptr;
}

PixelMemory* FrameBuffers::drawing() {
  if (m_drawing == nullptr) {
    m_drawing = pick();
    if (m_drawing != nullptr && m_shown != nullptr && m_drawing != m_shown) {
      for (const xplEdges& part : m_drawing->outdated()) {
        copyPixels(*m_shown, part, *m_drawing, part.left, part.top);
      }
    }
    if (m_drawing != nullptr) {
      m_drawing->outdated().clear();
    }
  }
  return m_drawing;
}

void FrameBuffers::show(wl_surface* surface, const std::vector<xplEdges>& changed) {
  if (m_drawing == nullptr) {
    return;
  }
  for (const auto& buffer : m_buffers) {
    if (buffer.get() != m_drawing) {
      addParts(buffer->outdated(), changed, {0, 0, m_width, m_height});
    }
  }
  m_drawing->attachTo(surface);
  m_shown = m_drawing;
  m_drawing = nullptr;
}
