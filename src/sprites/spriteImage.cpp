// Draws and sizes picture sprites.
#include "sprites/spriteImage.h"

#include "sprites/wholePixel.h"

void TorvSpriteImage_linkedImg::draw() {
  if (disabledCount() < 1 && renderWindow() != nullptr && m_image != nullptr) {
    m_image->drawOnWindow(*renderWindow(), wholePixel(x), wholePixel(y));
  }
}

void TorvSpriteImage_linkedImg::calcSize() {
  if (m_image != nullptr) {
    width = static_cast<float>(m_image->getWidth());
    height = static_cast<float>(m_image->getHeight());
    setSizeIsValid(true);
  }
}

void TorvSpriteImage_linkedImg::resizeImage(int newWidth, int newHeight) {
  if (m_image != nullptr) {
    m_image->resizeTo(newWidth, newHeight);
    setSizeIsValid(false);
    calcSize();
  }
}
