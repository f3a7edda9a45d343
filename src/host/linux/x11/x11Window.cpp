// Implements the saver's window on an X display.
#include "host/linux/x11/x11Window.h"

#include <algorithm>
#include <utility>

#include "host/linux/x11/windowContent.h"

X11Window::X11Window(X11Connection& connection, const X11Facts& facts, Description description)
    : m_connection(connection),
      m_description(std::move(description)),
      m_dotsPerInch(facts.dotsPerInch),
      m_presenter(connection, m_description.id, m_description.format, facts.frameReadEvent),
      m_isOnScreen(m_description.kind == WindowKind::foreign) {}

X11Window::~X11Window() {
  if (m_exists && m_description.kind != WindowKind::foreign) {
    xcb_destroy_window(m_connection.get(), m_description.id);
    xcb_flush(m_connection.get());
  }
}

std::unique_ptr<PixelMemory> X11Window::makePixelMemory(int width, int height) {
  return m_presenter.makePixelMemory(width, height);
}

void X11Window::copyContent(PixelMemory& memory) {
  const bool fromScreen = m_description.kind == WindowKind::fullRun && !m_isOnScreen;
  copyWindowContent(m_connection, fromScreen ? m_connection.screen().root : m_description.id,
                    m_description.format, memory);
}

void X11Window::present(PixelMemory& memory, std::span<const xplEdges> parts) {
  if (m_exists) {
    m_presenter.present(memory, parts);
  }
}

void X11Window::show() {
  if (!m_isOnScreen) {
    xcb_map_window(m_connection.get(), m_description.id);
    m_isOnScreen = true;
  }
}

void X11Window::blackenOutside(int width, int height) {
  if (!m_exists) {
    return;
  }
  const int ownWidth = m_description.width;
  const int ownHeight = m_description.height;
  const auto side = [](int length) { return static_cast<std::uint16_t>(std::clamp(length, 0, 65535)); };
  const xcb_rectangle_t outside[] = {
      {static_cast<std::int16_t>(ownWidth), 0, side(width - ownWidth), side(height)},
      {0, static_cast<std::int16_t>(ownHeight), side(std::min(ownWidth, width)), side(height - ownHeight)}};
  for (const auto& rectangle : outside) {
    if (rectangle.width > 0 && rectangle.height > 0) {
      m_presenter.blacken(rectangle);
    }
  }
}

void X11Window::coverScreen(int width, int height) {
  if (!m_exists) {
    return;
  }
  const std::uint32_t size[] = {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
  xcb_configure_window(m_connection.get(), m_description.id,
                       XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size);
  blackenOutside(width, height);
}
