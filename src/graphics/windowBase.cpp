// The window's operations that are derived from others on every platform.
#include "graphics/windowBase.h"

#include "graphics/wrapping.h"

void xplWindowBase::fillCircle(int x, int y, int radius, xplColor color) {
  fillEllipse(wrappingDifference(x, radius), wrappingDifference(y, radius), wrappingSum(x, radius),
              wrappingSum(y, radius), color);
}

int xplWindowBase::getBottom() {
  return getTop() + getHeight();
}

int xplWindowBase::getRight() {
  return getLeft() + getWidth();
}

xplTextDrawingInfo xplWindowBase::currentFontInfo() const {
  xplTextDrawingInfo info;
  info.fontName = fontName.current();
  info.fontSize = fontSize.current();
  info.characterSpacing = characterSpacing.current();
  info.nonAntialiased = nonAntialiased.current();
  info.thin = thin.current();
  return info;
}
