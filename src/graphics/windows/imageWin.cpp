// Implements the image on a bitmap of GDI.
#include "graphics/windows/imageWin.h"

#include "graphics/window.h"
#include "support/log.h"

namespace {

HBITMAP makeScreenBitmap(int width, int height) {
  const HDC screen = GetDC(nullptr);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  ReleaseDC(nullptr, screen);
  return bitmap;
}

unsigned lastError() {
  return static_cast<unsigned>(GetLastError());
}

}  // namespace

xplImageWin::xplImageWin() : m_hDC(CreateCompatibleDC(nullptr)), m_tools(m_hDC) {
  SetBkMode(m_hDC, TRANSPARENT);
}

xplImageWin::~xplImageWin() {
  if (m_GDIHBitmap != nullptr) {
    SelectObject(m_hDC, m_previousBitmap);
    DeleteObject(m_GDIHBitmap);
  }
  DeleteDC(m_hDC);
}

void xplImageWin::hold(HBITMAP bitmap) {
  const HGDIOBJ replaced = SelectObject(m_hDC, bitmap);
  if (m_GDIHBitmap == nullptr) {
    m_previousBitmap = replaced;
  } else {
    DeleteObject(m_GDIHBitmap);
  }
  m_GDIHBitmap = bitmap;
  m_width = -1;
  m_height = -1;
}

void xplImageWin::readSize() {
  BITMAP description{};
  if (m_width < 0 && m_GDIHBitmap != nullptr &&
      GetObjectA(m_GDIHBitmap, sizeof(description), &description) != 0) {
    m_width = description.bmWidth;
    m_height = description.bmHeight;
  }
}

void xplImageWin::initWithSizeAndColor(int width, int height, xplColor color) {
  if (m_GDIHBitmap != nullptr) {
    logError().add("xplImageWin.initWithSizeAndColor() called but m_GDIHBitmap not null");
  }
  if (m_hDC == nullptr) {
    logError().add("xplImageWin.initWithSizeAndColor() called but m_hDC is null");
  }
  const HBITMAP bitmap = isAllowedSize(width, height) ? makeScreenBitmap(width, height) : nullptr;
  if (bitmap == nullptr) {
    reportNoBitmap("initWithSizeAndColor", width, height);
    return;
  }
  hold(bitmap);
  m_tools.fillRect({0, 0, width, height}, color);
}

bool xplImageWin::initWithResource(int id) {
  if (m_GDIHBitmap != nullptr) {
    logError().addf("xplImageWin.initWithResource_impl(%i) called but hBitmap not null", id);
    return false;
  }
  const HBITMAP bitmap = LoadBitmapA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id));
  if (bitmap == nullptr) {
    logError().addf("#4653b: image.initWithResource_impl failed:%i with windows error code:%u", id,
                    lastError());
    return false;
  }
  if (m_hDC == nullptr) {
    logError().addf("xplImageWin.initWithResource_impl(%i) called but m_hDC is null", id);
    DeleteObject(bitmap);
    return false;
  }
  hold(bitmap);
  return true;
}

bool xplImageWin::initWithFile_impl(const std::string& filename) {
  if (m_GDIHBitmap != nullptr) {
    logError().addf("xplImageWin.initWithFile(%s) called but hBitmap not null", filename.c_str());
    return false;
  }
  const HANDLE bitmap = LoadImageA(nullptr, filename.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE);
  if (bitmap == nullptr) {
    const unsigned error = lastError();
    logError().addf("#4653: image.loadFromFile failed:%s", filename.c_str());
    logError().addf("        with windows error code:%u", error);
    return false;
  }
  if (m_hDC == nullptr) {
    logError().addf("xplImageWin.initWithFile(%s) called but m_hDC is null", filename.c_str());
    DeleteObject(bitmap);
    return false;
  }
  hold(static_cast<HBITMAP>(bitmap));
  return true;
}

void xplImageWin::amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) {
  m_tools.amplifyPixel(x, y, redFactor, greenFactor, blueFactor);
}

int xplImageWin::getWidth() {
  readSize();
  return m_width < 0 ? 0 : m_width;
}

int xplImageWin::getHeight() {
  readSize();
  return m_height < 0 ? 0 : m_height;
}

void xplImageWin::drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) {
  m_tools.drawText(x, y, text, info);
}

void xplImageWin::getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width,
                              int* height) {
  m_tools.getTextSize(text, info, width, height);
}

void xplImageWin::drawOnWindow(xplWindow& window, int x, int y) {
  if (m_GDIHBitmap != nullptr) {
    xplDrawingToolsWinDC(window.currentTarget())
        .drawImage(x, y, m_hDC, getWidth(), getHeight(), m_transparentColor);
  }
}
