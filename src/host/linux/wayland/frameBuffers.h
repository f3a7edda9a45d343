// The buffers of one surface: a frame is drawn into one that the compositor does not read, and made complete
// with what has changed since that one was shown.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "host/linux/wayland/changedParts.h"
#include "host/linux/wayland/shmBuffer.h"

class FrameBuffers {
 public:
  // place: the part of the picture that the surface shows, in pixels, not empty. The shared memory is
  // borrowed.
  FrameBuffers(wl_shm* sharedMemory, const xplEdges& place);

  // Pixels.
  int width() const { return m_place.right - m_place.left; }
  int height() const { return m_place.bottom - m_place.top; }

  // Whether a frame could be drawn now: the compositor leaves one of the buffers to us, or one can be added.
  bool hasRoom() const;
  // Takes over these parts of the picture, which are all that has changed since the last call. False, and
  // nothing is done, where the compositor reads all buffers or there is no memory.
  bool draw(const PixelMemory& picture, std::span<const xplEdges> parts);
  // Whether there is something to show: what was drawn since, and at first all.
  bool hasChanges() const { return !m_changed.isEmpty(); }
  // Shows that with the surface's next commit. There must be something.
  void show(wl_surface* surface);

 private:
  ShmBuffer* pick();
  // Copies what the buffer has missed.
  void bringUpToDate(const PixelMemory& picture);
  void tellChanges(wl_surface* surface) const;

  // A compositor reads one, or the last and the next for a moment. More would be a compositor that returns
  // none.
  static constexpr std::size_t most = 3;

  wl_shm* m_sharedMemory;
  xplEdges m_place;
  std::vector<std::unique_ptr<ShmBuffer>> m_buffers;
  ShmBuffer* m_shown = nullptr;    // the last that was shown
  ShmBuffer* m_drawing = nullptr;  // drawn into since; it may be the one shown last
  ChangedParts m_changed;          // between these two
};
