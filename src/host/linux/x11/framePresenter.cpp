// Implements showing frames: from shared memory with one request, or in pieces.
#include "host/linux/x11/framePresenter.h"

#include <algorithm>

#include <xcb/shm.h>
#include <xcb/xcbext.h>

#include "graphics/linux/heapPixelMemory.h"
#include "host/linux/x11/sharedPixelMemory.h"

namespace {

constexpr std::size_t largestPiece = std::size_t{1} << 18;  // bytes; enough to make the requests' cost vanish
constexpr std::size_t requestHead = 64;                     // bytes that a request needs beside its pixels

xplEdges clipped(const xplEdges& part, const PixelMemory& memory) {
  return {std::max(part.left, 0), std::max(part.top, 0), std::min(part.right, memory.width()),
          std::min(part.bottom, memory.height())};
}

}  // namespace

FramePresenter::FramePresenter(X11Connection& connection, xcb_window_t window, const PixelFormat& format,
                               std::optional<std::uint8_t> frameReadEvent)
    : m_connection(connection),
      m_window(window),
      m_format(format),
      m_frameReadEvent(format.isOurs() ? frameReadEvent : std::nullopt),
      m_context(xcb_generate_id(connection.get())) {
  const std::uint32_t values[] = {connection.screen().black_pixel, 0};
  xcb_create_gc(connection.get(), m_context, window, XCB_GC_FOREGROUND | XCB_GC_GRAPHICS_EXPOSURES, values);
  if (m_frameReadEvent) {
    m_sharingOpcode = xcb_get_extension_data(connection.get(), &xcb_shm_id)->major_opcode;
  }
}

std::unique_ptr<PixelMemory> FramePresenter::makePixelMemory(int width, int height) {
  if (m_frameReadEvent && width > 0 && height > 0) {
    if (auto memory = SharedPixelMemory::make(m_connection, width, height)) {
      return memory;
    }
  }
  return std::make_unique<HeapPixelMemory>(width, height);
}

void FramePresenter::present(PixelMemory& memory, std::span<const xplEdges> parts) {
  if (parts.empty() || !m_connection.isUsable()) {
    return;
  }
  auto* const shared = dynamic_cast<SharedPixelMemory*>(&memory);
  for (const xplEdges& part : parts) {
    const xplEdges visible = clipped(part, memory);
    if (visible.right <= visible.left || visible.bottom <= visible.top) {
      continue;
    }
    if (shared != nullptr) {
      presentShared(shared->segment(), memory, visible, &part == &parts.back());
    } else {
      presentInPieces(memory, visible);
    }
  }
  xcb_flush(m_connection.get());
}

void FramePresenter::presentShared(std::uint32_t segment, const PixelMemory& memory, const xplEdges& part,
                                   bool tellWhenRead) {
  xcb_shm_put_image(m_connection.get(), m_window, m_context, static_cast<std::uint16_t>(memory.width()),
                    static_cast<std::uint16_t>(memory.height()), static_cast<std::uint16_t>(part.left),
                    static_cast<std::uint16_t>(part.top), static_cast<std::uint16_t>(part.right - part.left),
                    static_cast<std::uint16_t>(part.bottom - part.top), static_cast<std::int16_t>(part.left),
                    static_cast<std::int16_t>(part.top), static_cast<std::uint8_t>(m_format.depth()),
                    XCB_IMAGE_FORMAT_Z_PIXMAP, tellWhenRead ? 1 : 0, segment, 0);
  m_unreadShared += tellWhenRead ? 1 : 0;
}

void FramePresenter::presentInPieces(PixelMemory& memory, const xplEdges& part) {
  const std::size_t allowed = std::size_t{xcb_get_maximum_request_length(m_connection.get())} * 4;
  const std::size_t room = std::min(largestPiece, allowed - requestHead);
  const std::size_t fitting = room / std::max<std::size_t>(m_format.rowSize(part.right - part.left), 1);
  const int rows = static_cast<int>(std::clamp<std::size_t>(fitting, 1, 65535));
  for (int top = part.top; top < part.bottom; top += rows) {
    sendRows(memory, part, top, std::min(rows, part.bottom - top));
  }
  if (m_lastPiece) {
    xcb_discard_reply(m_connection.get(), *m_lastPiece);
  }
  // Answered only after the pieces before it: it tells when the display is ready for more.
  m_lastPiece = xcb_get_input_focus(m_connection.get()).sequence;
}

void FramePresenter::sendRows(PixelMemory& memory, const xplEdges& part, int top, int rows) {
  const int width = part.right - part.left;
  const std::size_t rowSize = m_format.rowSize(width);
  m_piece.resize(rowSize * static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row) {
    const std::size_t offset = static_cast<std::size_t>(top + row) * memory.stride();
    m_format.convertRow(memory.pixels() + offset + part.left, width,
                        m_piece.data() + static_cast<std::size_t>(row) * rowSize);
  }
  xcb_put_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_context,
                static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(rows),
                static_cast<std::int16_t>(part.left), static_cast<std::int16_t>(top), 0,
                static_cast<std::uint8_t>(m_format.depth()), static_cast<std::uint32_t>(m_piece.size()),
                m_piece.data());
}

void FramePresenter::blacken(const xcb_rectangle_t& rectangle) {
  xcb_poly_fill_rectangle(m_connection.get(), m_window, m_context, 1, &rectangle);
}

bool FramePresenter::isRead() {
  if (m_lastPiece) {
    void* reply = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (xcb_poll_for_reply(m_connection.get(), *m_lastPiece, &reply, &error) != 0) {
      std::free(reply);
      std::free(error);
      m_lastPiece.reset();
    }
  }
  return (m_unreadShared <= 0 && !m_lastPiece) || !m_connection.isUsable();
}

void FramePresenter::waitUntilRead() {
  while (!isRead()) {
    if (auto event = m_connection.nextFreshEvent()) {
      if (!hear(*event)) {
        m_connection.putBack(std::move(event));
      }
    } else if (!isRead() && !m_connection.waitForInput()) {
      return;
    }
  }
}

bool FramePresenter::hear(const xcb_generic_event_t& event) {
  if (!m_frameReadEvent) {
    return false;
  }
  // A frame that the display refuses is answered with an error in place of the event; why it was refused is
  // for others to say, so that these pass.
  const auto& error = reinterpret_cast<const xcb_generic_error_t&>(event);
  const bool isRefused = event.response_type == 0 && error.major_code == m_sharingOpcode &&
                         error.minor_code == XCB_SHM_PUT_IMAGE;
  const bool isRead = (event.response_type & 0x7F) == *m_frameReadEvent;
  if (isRead || isRefused) {
    m_unreadShared = std::max(m_unreadShared - 1, 0);
  }
  return isRead;
}
