// The buffers of one surface: a frame is drawn into one that the compositor does not read, and made complete
// with what the frames before it showed.
#pragma once

#include <memory>
#include <vector>

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
  // Copies these parts of the picture, which must lie in it and in the place. False, and nothing is done,
  // where the compositor reads all buffers or there is no memory.
  bool draw(const PixelMemory& picture, const std::vector<xplEdges>& parts);
  // Shows what was drawn since the last call, with the surface's next commit; these parts of the picture, in
  // the place, are all that may differ from the last frame. Nothing where nothing was drawn.
  void show(wl_surface* surface, const std::vector<xplEdges>& changed);

 private:
  ShmBuffer* pick();
  xplEdges inBuffer(const xplEdges& part) const;
  void bringUpToDate(const xplEdges& tile);

  // A compositor reads one, or the last and the next for a moment. More would be a compositor that returns
  // none.
  static constexpr std::size_t most = 3;

  wl_shm* m_sharedMemory;
  xplEdges m_place;
  std::vector<std::unique_ptr<ShmBuffer>> m_buffers;
  ShmBuffer* m_shown = nullptr;    // the last that was shown
  ShmBuffer* m_drawing = nullptr;  // drawn into since; it may be the one shown last
};
