// The window on Linux: a back buffer in memory over a native window.
#include "graphics/linux/windowLinux.h"

#include "support/log.h"

namespace {

int dotsPerInchOf(xplWindowHandle handle) {
  return handle != nullptr ? handle->dotsPerInch() : 96;
}

xplEdges rectangleOf(xplWindowHandle handle) {
  return handle != nullptr ? handle->rectangle() : xplEdges{};
}

unsigned long unsignedEdge(int edge) {
  return static_cast<unsigned long>(static_cast<unsigned>(edge));
}

std::unique_ptr<Surface> makeSurfaceOfContent(xpliNativeWindow& window, int width, int height) {
  auto surface = std::make_unique<Surface>(window.makePixelMemory(width, height));
  window.copyContent(surface->memory());
  return surface;
}

}  // namespace

xplWindowLinux::xplWindowLinux(xplWindowHandle handle)
    : m_handle(handle), m_windowRect(rectangleOf(handle)), m_tools(m_target, dotsPerInchOf(handle)) {
  logInfo().addf("xplWindowWin() with hWND:%X, rect top:%lu, left:%lu, bottom:%lu, right:%lu",
                 handle != nullptr ? static_cast<unsigned>(handle->id()) : 0U, unsignedEdge(m_windowRect.top),
                 unsignedEdge(m_windowRect.left), unsignedEdge(m_windowRect.bottom),
                 unsignedEdge(m_windowRect.right));
  if (m_handle != nullptr) {
    m_backBuffer = makeSurfaceOfContent(*m_handle, getWidth(), getHeight());
    m_backBuffer->trackChanges();
    m_target = m_backBuffer.get();
  }
}

xplWindowLinux::~xplWindowLinux() {
  waitUntilShown();
}

void xplWindowLinux::waitUntilShown() {
  if (m_isBeingShown) {
    m_handle->waitUntilShown();
    m_isBeingShown = false;
  }
}

Surface* const& xplWindowLinux::currentTarget() {
  waitUntilShown();
  return m_target;
}

xplDrawingToolsLinux& xplWindowLinux::tools() {
  waitUntilShown();
  return m_tools;
}

void xplWindowLinux::flush() {
  if (m_backBuffer != nullptr && useBackBuffer) {
    show(*m_backBuffer);
  }
}

void xplWindowLinux::show(Surface& surface) {
  waitUntilShown();
  if (m_handle->takeContentLost()) {
    surface.changes()->forgetShown();
  }
  const auto& changed = surface.changes()->takeChanged(surface.memory());
  if (!changed.empty()) {
    m_handle->present(surface.memory(), changed);
    m_isBeingShown = true;
  }
}

void xplWindowLinux::drawn() {
  if (m_directSurface != nullptr && !useBackBuffer) {
    show(*m_directSurface);
  }
}

void xplWindowLinux::fillWindow(xplColor color) {
  tools().fillRect(m_windowRect, color);
  drawn();
}

void xplWindowLinux::fillRect(const xplRect<int>& rectangle, xplColor color) {
  tools().fillRect({rectangle.left, rectangle.top, rectangle.getRight(), rectangle.getBottom()}, color);
  drawn();
}

void xplWindowLinux::fillEllipse(int left, int top, int right, int bottom, xplColor color) {
  tools().fillEllipse(left, top, right, bottom, color);
  drawn();
}

void xplWindowLinux::drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) {
  tools().drawLine(x1, y1, x2, y2, penWidth, color);
  drawn();
}

int xplWindowLinux::getWidth() {
  return m_windowRect.right - m_windowRect.left;
}

int xplWindowLinux::getHeight() {
  return m_windowRect.bottom - m_windowRect.top;
}

int xplWindowLinux::getTop() {
  return m_windowRect.top;
}

int xplWindowLinux::getLeft() {
  return m_windowRect.left;
}

void xplWindowLinux::getTextSize(const std::string& text, int* width, int* height) {
  m_tools.getTextSize(text, currentFontInfo(), width, height);
}

void xplWindowLinux::setUseBackBuffer(bool use) {
  useBackBuffer = use;
  if (m_handle == nullptr) {
    return;
  }
  waitUntilShown();
  if (use) {
    if (m_directSurface != nullptr) {
      m_directSurface.reset();
      m_backBuffer->changes()->forgetShown();  // the window shows what was drawn on it directly
    }
    m_target = m_backBuffer.get();
    return;
  }
  m_directSurface = makeSurfaceOfContent(*m_handle, getWidth(), getHeight());
  m_directSurface->trackChanges();
  m_target = m_directSurface.get();
}
