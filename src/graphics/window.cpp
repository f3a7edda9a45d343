// The window's operations that work alike on every platform through its tools and stacks.
#include "graphics/window.h"

namespace {

int alignmentCodeOf(int alignment) {
  switch (alignment) {
    case xplTextAttributes::alignmentRight:
      return xplTextDrawingInfo::alignRight;
    case xplTextAttributes::alignmentCentered:
      return xplTextDrawingInfo::alignCentered;
    default:
      return xplTextDrawingInfo::alignLeft;
  }
}

}  // namespace

void xplWindow::clear() {
  fillWindow(backgroundColor.current());
}

void xplWindow::drawText(int x, int y, const std::string& text, const xplTextAttributes* attributes) {
  pushTextAttributes(attributes);
  xplTextDrawingInfo info = currentFontInfo();
  info.color = textColor.current();
  info.alignment = textAlignment.current();
  tools().drawText(x, y, text, info);
  drawn();
  popTextAttributes(attributes);
}

void xplWindow::pushTextAttributes(const xplTextAttributes* attributes) {
  if (attributes == nullptr) {
    return;
  }
  if (attributes->color) {
    textColor.push(*attributes->color);
  }
  if (attributes->fontName) {
    fontName.push(*attributes->fontName);
  }
  if (attributes->fontSize) {
    fontSize.push(*attributes->fontSize);
  }
  if (attributes->alignment) {
    textAlignment.push(alignmentCodeOf(*attributes->alignment));
  }
}

void xplWindow::popTextAttributes(const xplTextAttributes* attributes) {
  if (attributes == nullptr) {
    return;
  }
  if (attributes->alignment) {
    textAlignment.pop();
  }
  if (attributes->fontName) {
    fontName.pop();
  }
  if (attributes->fontSize) {
    fontSize.pop();
  }
  if (attributes->color) {
    textColor.pop();
  }
}

xplColor xplWindow::getPixel(int x, int y) {
  if (x < 0 || x >= getWidth() || y < 0 || y >= getHeight()) {
    return {0, 0, 0};
  }
  return tools().getPixel(x, y);
}

void xplWindow::setPixel(int x, int y, xplColor color) {
  if (x < 0 || x >= getWidth() || y < 0 || y >= getHeight()) {
    return;
  }
  tools().setPixel(x, y, color);
  drawn();
}
