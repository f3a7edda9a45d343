// The buffers of one surface: a frame is drawn into one that the compositor does not read, and made complete
// with what the frames before it showed.
#pragma once

#include <memory>
#include <vector>

#include "host/linux/wayland/shmBuffer.h"

class FrameBuffers {
 public:
  // Pixels, above 0. The shared memory is borrowed.
  FrameBuffers(wl_shm* sharedMemory, int width, int height);

  int width() const { return m_width; }
  int height() const { return m_height; }

  // Whether a frame could be drawn now: the compositor leaves one of the buffers to us, or one can be added.
  bool hasRoom() const;
  // Where the next frame is drawn: it holds what the last one showed. The same until show(). Null where the
  // compositor reads all of them, or there is no memory.
  PixelMemory* drawing();
  // Shows what was drawn since the last call, with the surface's next commit; these parts differ from the
  // last frame. Nothing where nothing was drawn.
  void show(wl_surface* surface, const std::vector<xplEdges>& changed);

 private:
  ShmBuffer* pick();

  // A compositor reads one, or the last and the next for a moment. More would be a compositor that returns
  // none.
  static constexpr std::size_t most = 3;

  wl_shm* m_sharedMemory;
  int m_width;
  int m_height;
  std::vector<std::unique_ptr<ShmBuffer>> m_buffers;
  ShmBuffer* m_shown = nullptr;    // the last that was shown
  ShmBuffer* m_drawing = nullptr;  // drawn into since; it may be the one shown last
};
