// Resizes and crops the image on a bitmap of GDI.
#include "graphics/windows/imageWin.h"
#include "support/log.h"

namespace {

// A context with a bitmap of its own, for a picture on its way.
class TemporaryPicture {
 public:
  TemporaryPicture(HDC model, int width, int height)
      : m_context(CreateCompatibleDC(model)), m_bitmap(CreateCompatibleBitmap(model, width, height)) {
    SetBkMode(m_context, TRANSPARENT);
    m_previous = SelectObject(m_context, m_bitmap);
  }
  ~TemporaryPicture() {
    SelectObject(m_context, m_previous);
    DeleteObject(m_bitmap);
    DeleteDC(m_context);
  }
  TemporaryPicture(const TemporaryPicture&) = delete;
  TemporaryPicture& operator=(const TemporaryPicture&) = delete;

  bool isUsable() const { return m_context != nullptr && m_bitmap != nullptr; }
  HDC context() const { return m_context; }

 private:
  HDC m_context;
  HBITMAP m_bitmap;
  HGDIOBJ m_previous = nullptr;
};

}  // namespace

bool xplImageWin::takeOver(HDC source, int width, int height) {
  const HBITMAP bitmap = CreateCompatibleBitmap(m_hDC, width, height);
  if (bitmap == nullptr) {
    return false;
  }
  hold(bitmap);
  BitBlt(m_hDC, 0, 0, width, height, source, 0, 0, SRCCOPY);
  return true;
}

void xplImageWin::resizeTo_impl(int width, int height) {
  if (m_GDIHBitmap == nullptr) {
    return;
  }
  if (!isAllowedSize(width, height)) {
    reportNoBitmap("resizeTo_impl", width, height);
    return;
  }
  const TemporaryPicture resized(m_hDC, width, height);
  SetStretchBltMode(resized.context(), COLORONCOLOR);
  StretchBlt(resized.context(), 0, 0, width, height, m_hDC, 0, 0, getWidth(), getHeight(), SRCCOPY);
  if (!resized.isUsable() || !takeOver(resized.context(), width, height)) {
    reportNoBitmap("resizeTo_impl", width, height);
    return;
  }
  logInfo().addf("xplImageWin.resizeTo_impl() exiting with new w=%i, new h=%i", width, height);
}

void xplImageWin::crop_impl(int x, int y, int width, int height) {
  if (m_GDIHBitmap == nullptr) {
    return;
  }
  if (!isAllowedSize(width, height)) {
    reportNoBitmap("crop_impl", width, height);
    return;
  }
  const TemporaryPicture cropped(m_hDC, width, height);
  PatBlt(cropped.context(), 0, 0, width, height, BLACKNESS);
  BitBlt(cropped.context(), 0, 0, width, height, m_hDC, x, y, SRCCOPY);
  if (!cropped.isUsable() || !takeOver(cropped.context(), width, height)) {
    reportNoBitmap("crop_impl", width, height);
  }
}
