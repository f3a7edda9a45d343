// The drawing operations on a surface.
#pragma once

#include <optional>
#include <string>

#include "graphics/drawingTools.h"
#include "graphics/linux/surface.h"

// A target is a borrowed surface; null where there is none.
template <>
struct xplDeviceContextOf<xplEdges> {
  using type = Surface*;
};

class xplDrawingToolsLinux : public xpliDrawingTools<xplEdges> {
 public:
  // Refers to a slot that holds the present target: changing the slot redirects every later call. The slot
  // must outlive the tools. dotsPerInch: the target's, at least 1.
  explicit xplDrawingToolsLinux(Surface* const& target, int dotsPerInch = 96)
      : m_target(target), m_dotsPerInch(dotsPerInch) {}
  xplDrawingToolsLinux(Surface* const&& target, int dotsPerInch = 96) = delete;

  void fillEllipse(int left, int top, int right, int bottom, xplColor color) override;
  void fillRect(const xplEdges& rectangle, xplColor color) override;
  void drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) override;
  void getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width, int* height) override;
  xplColor getPixel(int x, int y) override;
  void setPixel(int x, int y, xplColor color) override;
  void drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) override;
  void amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) override;
  void drawImage(int x, int y, Surface* const& source, int width, int height,
                 std::optional<xplColor> transparentColor) override;

 private:
  Surface* const& m_target;
  int m_dotsPerInch;
  xplColor m_textColor{0, 0, 0};  // a text without a colour is drawn in the last one
};
