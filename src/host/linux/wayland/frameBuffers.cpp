// Implements the buffers of a surface.
#include "host/linux/wayland/frameBuffers.h"

#include <algorithm>

#include "host/linux/wayland/pictureParts.h"

FrameBuffers::FrameBuffers(wl_shm* sharedMemory, const xplEdges& place)
    : m_sharedMemory(sharedMemory), m_place(place) {
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
    if (auto added = ShmBuffer::make(m_sharedMemory, m_place)) {
      added->outdated().markAll();
      m_buffers.push_back(std::move(added));
      return m_buffers.back().get();
    }
  }
  return nullptr;
}

xplEdges FrameBuffers::inBuffer(const xplEdges& part) const {
  return {part.left - m_place.left, part.top - m_place.top, part.right - m_place.left,
          part.bottom - m_place.top};
}

// Before the first frame there is nothing to bring: new buffers are black.
void FrameBuffers::bringUpToDate(const xplEdges& tile) {
  if (m_shown != nullptr) {
    copyPixels(*m_shown, tile, *m_drawing, tile.left, tile.top);
  }
}

bool FrameBuffers::draw(const PixelMemory& picture, const std::vector<xplEdges>& parts) {
  if (m_drawing == nullptr) {
    m_drawing = pick();
  }
  if (m_drawing == nullptr) {
    return false;
  }
  for (const xplEdges& part : parts) {
    const xplEdges here = inBuffer(part);
    if (m_drawing->outdated().isAnyMarked()) {
      // What is drawn over needs not to be brought up to date before.
      m_drawing->outdated().cover(here, [&](const xplEdges& tile) { bringUpToDate(tile); });
    }
    copyPixels(picture, part, *m_drawing, here.left, here.top);
  }
  return true;
}

void FrameBuffers::show(wl_surface* surface, const std::vector<xplEdges>& changed) {
  if (m_drawing == nullptr) {
    return;
  }
  m_drawing->outdated().takeAll([&](const xplEdges& tile) { bringUpToDate(tile); });
  for (const auto& buffer : m_buffers) {
    if (buffer.get() != m_drawing) {
      for (const xplEdges& part : changed) {
        buffer->outdated().mark(inBuffer(part));
      }
    }
  }
  m_drawing->attachTo(surface);
  m_shown = m_drawing;
  m_drawing = nullptr;
}
