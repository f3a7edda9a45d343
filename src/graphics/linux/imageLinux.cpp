// Implements the image on a surface in memory.
#include "graphics/linux/imageLinux.h"

#include <new>
#include <utility>

#include "graphics/linux/bitmapLoader.h"
#include "graphics/window.h"
#include "support/log.h"

namespace {

// A filled surface; null where there is no memory for it.
std::unique_ptr<Surface> makeSurface(int width, int height, xplColor color) {
  try {
    auto surface = std::make_unique<Surface>(width, height);
    surface->fillRect({0, 0, width, height}, color);
    return surface;
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

xplImageLinux::xplImageLinux() : m_tools(m_target) {}

xplImageLinux::~xplImageLinux() = default;

void xplImageLinux::hold(std::unique_ptr<Surface> bitmap) {
  m_bitmap = std::move(bitmap);
  m_target = m_bitmap.get();
}

void xplImageLinux::initWithSizeAndColor(int width, int height, xplColor color) {
  if (m_bitmap) {
    logError().add("xplImageWin.initWithSizeAndColor() called but m_GDIHBitmap not null");
  }
  auto bitmap = isAllowedSize(width, height) ? makeSurface(width, height, color) : nullptr;
  if (!bitmap) {
    reportNoBitmap("initWithSizeAndColor", width, height);
    return;
  }
  hold(std::move(bitmap));
}

bool xplImageLinux::initWithResource(int id) {
  if (m_bitmap) {
    logError().addf("xplImageWin.initWithResource_impl(%i) called but hBitmap not null", id);
    return false;
  }
  LoadedBitmap loaded = loadBitmapResource(id);
  if (!loaded.surface) {
    logError().addf("#4653b: image.initWithResource_impl failed:%i with windows error code:%u", id,
                    static_cast<unsigned>(loaded.error));
    return false;
  }
  hold(std::move(loaded.surface));
  return true;
}

bool xplImageLinux::initWithFile_impl(const std::string& filename) {
  if (m_bitmap) {
    logError().addf("xplImageWin.initWithFile(%s) called but hBitmap not null", filename.c_str());
    return false;
  }
  LoadedBitmap loaded = loadBitmapFile(filename);
  if (!loaded.surface) {
    logError().addf("#4653: image.loadFromFile failed:%s", filename.c_str());
    logError().addf("        with windows error code:%u", static_cast<unsigned>(loaded.error));
    return false;
  }
  hold(std::move(loaded.surface));
  return true;
}

void xplImageLinux::amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) {
  m_tools.amplifyPixel(x, y, redFactor, greenFactor, blueFactor);
}

int xplImageLinux::getWidth() {
  return m_bitmap ? m_bitmap->width() : 0;
}

int xplImageLinux::getHeight() {
  return m_bitmap ? m_bitmap->height() : 0;
}

void xplImageLinux::drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) {
  m_tools.drawText(x, y, text, info);
}

void xplImageLinux::getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width,
                                int* height) {
  m_tools.getTextSize(text, info, width, height);
}

void xplImageLinux::drawOnWindow(xplWindow& window, int x, int y) {
  if (m_bitmap) {
    xplDrawingToolsLinux(window.currentTarget())
        .drawImage(x, y, m_target, getWidth(), getHeight(), m_transparentColor);
    window.drawn();
  }
}

void xplImageLinux::resizeTo_impl(int width, int height) {
  if (!m_bitmap) {
    return;
  }
  auto resized = isAllowedSize(width, height) ? makeSurface(width, height, {}) : nullptr;
  if (!resized) {
    reportNoBitmap("resizeTo_impl", width, height);
    return;
  }
  resized->stretchFrom(*m_bitmap);
  hold(std::move(resized));
  logInfo().addf("xplImageWin.resizeTo_impl() exiting with new w=%i, new h=%i", width, height);
}

void xplImageLinux::crop_impl(int x, int y, int width, int height) {
  if (!m_bitmap) {
    return;
  }
  auto cropped = isAllowedSize(width, height) ? makeSurface(width, height, {}) : nullptr;
  if (!cropped) {
    reportNoBitmap("crop_impl", width, height);
    return;
  }
  cropped->blit(0, 0, *m_bitmap, x, y, width, height, std::nullopt);
  hold(std::move(cropped));
}
