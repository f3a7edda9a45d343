// Shows frames in a window, and knows when the display has read them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "graphics/linux/pixelMemory.h"
#include "graphics/linux/surface.h"
#include "host/linux/x11/pixelFormat.h"
#include "host/linux/x11/x11Connection.h"

class FramePresenter {
 public:
  // frameReadEvent: as X11Facts has it. The connection is borrowed.
  FramePresenter(X11Connection& connection, xcb_window_t window, const PixelFormat& format,
                 std::optional<std::uint8_t> frameReadEvent);

  // Memory that present() shows best: shared with the display where that can be had.
  std::unique_ptr<PixelMemory> makePixelMemory(int width, int height);
  // Sends these parts of the memory to the same places of the window.
  void present(PixelMemory& memory, std::span<const xplEdges> parts);

  // Fills a rectangle of the window with black.
  void blacken(const xcb_rectangle_t& rectangle);

  // False from present() until the display has read the frame, as far as has been heard.
  bool isRead();
  // Waits until it has; ends early when the display goes or the program is to end. Events that come meanwhile
  // are put back.
  void waitUntilRead();
  // Takes note of an event that speaks of a frame. False for every other, which is somebody else's.
  bool hear(const xcb_generic_event_t& event);

 private:
  // tellWhenRead: the display answers once it has read this part and those before it.
  void presentShared(std::uint32_t segment, const PixelMemory& memory, const xplEdges& part,
                     bool tellWhenRead);
  void presentInPieces(PixelMemory& memory, const xplEdges& part);
  void sendRows(PixelMemory& memory, const xplEdges& part, int top, int rows);

  X11Connection& m_connection;
  xcb_window_t m_window;
  PixelFormat m_format;
  std::optional<std::uint8_t> m_frameReadEvent;
  std::uint8_t m_sharingOpcode = 0;
  xcb_gcontext_t m_context;
  int m_unreadShared = 0;               // frames in shared memory that the display has yet to read
  std::optional<unsigned> m_lastPiece;  // the request whose answer follows the last piece
  std::vector<std::uint8_t> m_piece;
};
