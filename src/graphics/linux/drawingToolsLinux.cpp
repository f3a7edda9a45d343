// The drawing operations on a surface.
#include "graphics/linux/drawingToolsLinux.h"

#include "graphics/amplify.h"
#include "graphics/linux/textRenderer.h"

namespace {

constexpr int defaultPoints = 10;

TextStyle styleOf(const xplTextDrawingInfo& info, int dotsPerInch) {
  TextStyle style;
  style.fontName = info.fontName.value_or("Arial");
  style.characterHeight = characterHeightOf(info.fontSize.value_or(defaultPoints), dotsPerInch);
  style.characterSpacing = static_cast<int>(info.characterSpacing.value_or(0.0F));
  style.antialiased = info.nonAntialiased != 1;
  style.thin = info.thin == 1;
  return style;
}

}  // namespace

void xplDrawingToolsLinux::fillEllipse(int left, int top, int right, int bottom, xplColor color) {
  if (m_target != nullptr) {
    m_target->fillEllipse({left, top, right, bottom}, color);
  }
}

void xplDrawingToolsLinux::fillRect(const xplEdges& rectangle, xplColor color) {
  if (m_target != nullptr) {
    m_target->fillRect(rectangle, color);
  }
}

void xplDrawingToolsLinux::drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) {
  m_textColor = info.color.value_or(m_textColor);
  if (m_target != nullptr) {
    drawTextOn(*m_target, x, y, text, styleOf(info, m_dotsPerInch), m_textColor,
               info.alignment.value_or(xplTextDrawingInfo::alignLeft));
  }
}

void xplDrawingToolsLinux::getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width,
                                       int* height) {
  const TextSize size = m_target != nullptr ? measureText(text, styleOf(info, m_dotsPerInch)) : TextSize{};
  if (width != nullptr) {
    *width = size.width;
  }
  if (height != nullptr) {
    *height = size.height;
  }
}

// Deliberate: opaque red tells a developer who looks at the screen that there was nothing to read from.
xplColor xplDrawingToolsLinux::getPixel(int x, int y) {
  return m_target != nullptr ? m_target->getPixel(x, y) : xplColor(255, 0, 0);
}

void xplDrawingToolsLinux::setPixel(int x, int y, xplColor color) {
  if (m_target != nullptr) {
    m_target->setPixel(x, y, color);
  }
}

void xplDrawingToolsLinux::drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) {
  if (m_target != nullptr) {
    m_target->drawLine(x1, y1, x2, y2, penWidth, color);
  }
}

void xplDrawingToolsLinux::amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) {
  if (m_target != nullptr) {
    m_target->setPixel(x, y, amplified(m_target->getPixel(x, y), redFactor, greenFactor, blueFactor));
  }
}

void xplDrawingToolsLinux::drawImage(int x, int y, Surface* const& source, int width, int height,
                                     std::optional<xplColor> transparentColor) {
  if (m_target != nullptr && source != nullptr) {
    m_target->blit(x, y, *source, 0, 0, width, height, transparentColor);
  }
}
