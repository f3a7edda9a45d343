// Implements the buffers of a surface.
#include "host/linux/wayland/frameBuffers.h"

#include <algorithm>
#include <climits>

#include "host/linux/wayland/pictureParts.h"

FrameBuffers::FrameBuffers(wl_shm* sharedMemory, const xplEdges& place)
    : m_sharedMemory(sharedMemory),
      m_place(place),
      m_changed(place.right - place.left, place.bottom - place.top) {
  m_buffers.reserve(most);
}

bool FrameBuffers::hasRoom() const {
  return m_drawing != nullptr || m_buffers.size() < most ||
         std::any_of(m_buffers.begin(), m_buffers.end(), [](const auto& b) { return !b->isBeingRead(); });
}

ShmBuffer* FrameBuffers::pick() {
  // The one shown last needs nothing more than the changes.
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

// It comes from the picture, and not from the buffer that is shown: most of it has just been drawn and is
// near, while the other was read by the compositor since. All of it is copied at once, after all that is to
// be noted: what is read between two copies waits until the first of them has arrived in memory.
void FrameBuffers::bringUpToDate(const PixelMemory& picture) {
  const PartCopy all(picture, *m_drawing, m_place.left, m_place.top);
  m_drawing->outdated().takeAll([&](const xplEdges& tile) { all.copy(tile); });
}

bool FrameBuffers::draw(const PixelMemory& picture, std::span<const xplEdges> parts) {
  if (m_drawing == nullptr) {
    m_drawing = pick();
  }
  if (m_drawing == nullptr) {
    return false;
  }
  for (const xplEdges& part : parts) {
    const xplEdges visible = commonPart(part, m_place);
    if (isEmpty(visible)) {
      continue;
    }
    const xplEdges here = {visible.left - m_place.left, visible.top - m_place.top,
                           visible.right - m_place.left, visible.bottom - m_place.top};
    m_changed.add(here);
    for (const auto& buffer : m_buffers) {
      buffer->outdated().mark(here);
    }
  }
  bringUpToDate(picture);
  if (m_shown == nullptr) {
    m_changed.setWhole();
  }
  return true;
}

void FrameBuffers::tellChanges(wl_surface* surface) const {
  if (wl_surface_get_version(surface) < WL_SURFACE_DAMAGE_BUFFER_SINCE_VERSION) {
    wl_surface_damage(surface, 0, 0, INT_MAX, INT_MAX);
    return;
  }
  for (const xplEdges& part : m_changed.parts()) {
    wl_surface_damage_buffer(surface, part.left, part.top, part.right - part.left, part.bottom - part.top);
  }
}

void FrameBuffers::show(wl_surface* surface) {
  m_drawing->attachTo(surface);
  tellChanges(surface);
  m_shown = m_drawing;
  m_drawing = nullptr;
  m_changed.clear();
}
