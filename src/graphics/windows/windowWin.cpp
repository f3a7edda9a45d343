// The window on Windows: a GDI back buffer over a native window.
#include "graphics/windows/windowWin.h"

#include <cstdint>

#include "support/log.h"

namespace {

unsigned long unsignedEdge(LONG edge) {
  return static_cast<unsigned long>(edge);
}

unsigned handleNumber(HWND handle) {
  return static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(handle));
}

}  // namespace

xplWindowWin::xplWindowWin(xplWindowHandle handle) : m_handle(handle), m_tools(m_target) {
  if (m_handle != nullptr) {
    m_windowContext = GetDC(m_handle);
    SetBkMode(m_windowContext, TRANSPARENT);
    m_target = m_windowContext;
    GetWindowRect(m_handle, &m_windowRect);
  }
  logInfo().addf("xplWindowWin() with hWND:%X, rect top:%lu, left:%lu, bottom:%lu, right:%lu",
                 handleNumber(m_handle), unsignedEdge(m_windowRect.top), unsignedEdge(m_windowRect.left),
                 unsignedEdge(m_windowRect.bottom), unsignedEdge(m_windowRect.right));
  if (m_handle == nullptr) {
    return;
  }
  const int width = m_windowRect.right - m_windowRect.left;
  const int height = m_windowRect.bottom - m_windowRect.top;
  m_backBufferContext = CreateCompatibleDC(m_windowContext);
  SetBkMode(m_backBufferContext, TRANSPARENT);
  m_backBufferBitmap = CreateCompatibleBitmap(m_windowContext, width, height);
  m_previousBitmap = SelectObject(m_backBufferContext, m_backBufferBitmap);
  takeContent();
  m_target = m_backBufferContext;
}

xplWindowWin::~xplWindowWin() {
  if (m_backBufferContext != nullptr) {
    SelectObject(m_backBufferContext, m_previousBitmap);
    DeleteObject(m_backBufferBitmap);
    DeleteDC(m_backBufferContext);
  }
  if (m_windowContext != nullptr) {
    ReleaseDC(m_handle, m_windowContext);
  }
}

// A window that is not on the screen yet has no content of its own: the screen has, at its place.
void xplWindowWin::takeContent() {
  if (IsWindowVisible(m_handle) != FALSE) {
    BitBlt(m_backBufferContext, 0, 0, getWidth(), getHeight(), m_windowContext, 0, 0, SRCCOPY);
    return;
  }
  const HDC screen = GetDC(nullptr);
  BitBlt(m_backBufferContext, 0, 0, getWidth(), getHeight(), screen, getLeft(), getTop(), SRCCOPY);
  ReleaseDC(nullptr, screen);
  m_isContentUnshown = true;
}

// The compositor gives a new window an empty surface, where there used to be the pixels that it covered:
// drawing straight to it starts from those.
void xplWindowWin::showTakenContent() {
  m_isContentUnshown = false;
  BitBlt(m_windowContext, 0, 0, getWidth(), getHeight(), m_backBufferContext, 0, 0, SRCCOPY);
}

xplDrawingToolsWinDC& xplWindowWin::tools() {
  if (m_isContentUnshown && !useBackBuffer && IsWindowVisible(m_handle) != FALSE) {
    showTakenContent();
  }
  return m_tools;
}

void xplWindowWin::flush() {
  if (m_backBufferContext != nullptr && useBackBuffer) {
    m_isContentUnshown = false;
    BitBlt(m_windowContext, 0, 0, getWidth(), getHeight(), m_backBufferContext, 0, 0, SRCCOPY);
  }
}

void xplWindowWin::fillWindow(xplColor color) {
  tools().fillRect(m_windowRect, color);
}

void xplWindowWin::fillRect(const xplRect<int>& rectangle, xplColor color) {
  tools().fillRect({rectangle.left, rectangle.top, rectangle.getRight(), rectangle.getBottom()}, color);
}

void xplWindowWin::fillEllipse(int left, int top, int right, int bottom, xplColor color) {
  tools().fillEllipse(left, top, right, bottom, color);
}

void xplWindowWin::drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) {
  tools().drawLine(x1, y1, x2, y2, penWidth, color);
}

int xplWindowWin::getWidth() {
  return m_windowRect.right - m_windowRect.left;
}

int xplWindowWin::getHeight() {
  return m_windowRect.bottom - m_windowRect.top;
}

int xplWindowWin::getTop() {
  return m_windowRect.top;
}

int xplWindowWin::getLeft() {
  return m_windowRect.left;
}

void xplWindowWin::getTextSize(const std::string& text, int* width, int* height) {
  m_tools.getTextSize(text, currentFontInfo(), width, height);
}

void xplWindowWin::setUseBackBuffer(bool use) {
  useBackBuffer = use;
  m_target = use ? m_backBufferContext : m_windowContext;
}
