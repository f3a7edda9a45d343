// The renderer's window on Windows: a popup that is never shown.
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <io.h>

#include "graphics/windows/gdi.h"
#include "render/offscreenWindow.h"

struct OffscreenWindow::Native {
  HWND window = nullptr;
  HDC context = nullptr;          // a memory context that holds the bitmap
  HBITMAP bitmap = nullptr;       // top-down, 32 bits
  HGDIOBJ previous = nullptr;     // what the context held before
  std::uint32_t* bits = nullptr;  // the bitmap's own memory
  int width = 0;
  int height = 0;
};

OffscreenWindow::OffscreenWindow(int width, int height) : m_native(std::make_unique<Native>()) {
  m_native->width = width;
  m_native->height = height;
  m_native->window = CreateWindowExA(0, "Static", "", WS_POPUP, 0, 0, width, height, nullptr, nullptr,
                                     GetModuleHandleA(nullptr), nullptr);
  if (m_native->window == nullptr) {
    throw std::runtime_error("the system gives no window of this size");
  }
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  m_native->bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  m_native->context = CreateCompatibleDC(nullptr);
  if (m_native->bitmap == nullptr || m_native->context == nullptr) {
    throw std::runtime_error("the system gives no memory for a picture of this size");
  }
  m_native->bits = static_cast<std::uint32_t*>(bits);
  m_native->previous = SelectObject(m_native->context, m_native->bitmap);
}

OffscreenWindow::~OffscreenWindow() {
  SelectObject(m_native->context, m_native->previous);
  DeleteObject(m_native->bitmap);
  DeleteDC(m_native->context);
  DestroyWindow(m_native->window);
}

xplWindowHandle OffscreenWindow::handle() {
  return m_native->window;
}

void OffscreenWindow::readFrame(xplWindow& window, std::vector<std::uint32_t>& pixels) {
  // A window that is not shown keeps nothing of what is flushed to it; the back buffer holds the same frame.
  BitBlt(m_native->context, 0, 0, m_native->width, m_native->height, window.currentTarget(), 0, 0, SRCCOPY);
  GdiFlush();
  const auto count = static_cast<std::size_t>(m_native->width) * static_cast<std::size_t>(m_native->height);
  pixels.assign(m_native->bits, m_native->bits + count);
  for (auto& pixel : pixels) {
    pixel |= 0xff000000U;
  }
}

bool standardErrorIsTerminal() {
  return _isatty(_fileno(stderr)) != 0;
}

void makeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

unsigned long processNumber() {
  return GetCurrentProcessId();
}
