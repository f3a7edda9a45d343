// Draws and measures text sprites.
#include "sprites/spriteText.h"

#include "sprites/wholePixel.h"
#include "support/log.h"

xplTextAttributes TorvTextStyle::toAttributes() const {
  xplTextAttributes attributes;
  if (!useWindowTextColor) {
    attributes.color = textColor;
  }
  if (!useWindowFont) {
    attributes.fontName = fontName;
  }
  if (!useWindowFontSize) {
    attributes.fontSize = fontSize;
  }
  if (!alignDefault) {
    attributes.alignment = alignment;
  }
  return attributes;
}

void TorvSpriteText::draw() {
  if (!isShown()) {
    return;
  }
  if (renderWindow() == nullptr) {
    logError().addf("#4573: %s.draw() with nil m_renderWindowPtr", name());
    return;
  }
  int shift = 0;
  if (!style.alignDefault && style.alignment == xplTextAttributes::alignmentRight) {
    shift = wholePixel(width);
  } else if (!style.alignDefault && style.alignment == xplTextAttributes::alignmentCentered) {
    shift = wholePixel(width) / 2;
  }
  const xplTextAttributes attributes = style.toAttributes();
  renderWindow()->drawText(wholePixel(x) + shift, wholePixel(y), m_text, &attributes);
}

void TorvSpriteText::calcSize() {
  if (renderWindow() == nullptr) {
    width = 0.0F;
    height = 0.0F;
    return;
  }
  xplTextAttributes font = style.toAttributes();
  font.color.reset();
  font.alignment.reset();
  renderWindow()->pushTextAttributes(&font);
  int measuredWidth = 0;
  int measuredHeight = 0;
  renderWindow()->getTextSize(m_text, &measuredWidth, &measuredHeight);
  renderWindow()->popTextAttributes(&font);
  setSizeIsValid(true);
  width = static_cast<float>(measuredWidth);
  height = static_cast<float>(measuredHeight);
}

void TorvSpriteText::setText(const std::string& text) {
  if (text != m_text) {
    m_text = text;
    setSizeIsValid(false);
  }
}
