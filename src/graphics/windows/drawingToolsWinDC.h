// The drawing operations on a GDI device context.
#pragma once

#include <optional>
#include <string>

#include "graphics/drawingTools.h"
#include "graphics/windows/gdi.h"

template <>
struct xplDeviceContextOf<RECT> {
  using type = HDC;
};

class xplDrawingToolsWinDC : public xpliDrawingTools<RECT> {
 public:
  // Refers to a slot that holds the present target: changing the slot redirects every later call. The slot
  // must outlive the tools.
  explicit xplDrawingToolsWinDC(const HDC& target) : m_target(target) {}
  xplDrawingToolsWinDC(const HDC&& target) = delete;

  void fillEllipse(int left, int top, int right, int bottom, xplColor color) override;
  void fillRect(const RECT& rectangle, xplColor color) override;
  void drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) override;
  void getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width, int* height) override;
  xplColor getPixel(int x, int y) override;
  void setPixel(int x, int y, xplColor color) override;
  void drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) override;
  void amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) override;
  void drawImage(int x, int y, const HDC& source, int width, int height,
                 std::optional<xplColor> transparentColor) override;

 private:
  const HDC& m_target;
};
