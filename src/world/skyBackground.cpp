// Prepares and draws the backgrounds.
#include "world/skyBackground.h"

#include "sprites/wholePixel.h"
#include "support/log.h"

void cSkyBackground::draw() {
  if (renderWindow() == nullptr) {
    return;
  }
  if (m_needsInit) {
    m_needsInit = false;
    resizeToWindow();
  }
  if (disabledCount() < 1) {
    drawPrepared();
  }
}

void cSkyBackground::calcSize() {
  width = windowWidth;
  height = windowHeight;
  setSizeIsValid(true);
}

void cSkyBackground::resizeToWindow() {
  windowWidth = static_cast<float>(renderWindow()->getWidth());
  windowHeight = static_cast<float>(renderWindow()->getHeight());
  x = 0.0F;
  y = 0.0F;
}

void cSkyBackground_SolidColor::drawPrepared() {
  renderWindow()->fillRect(xplRect<int>(0, 0, wholePixel(windowWidth), wholePixel(windowHeight)), m_color);
}

void cSkyBackground_Image::resizeToWindow() {
  const logTimeCountrer block(m_blockName);
  cSkyBackground::resizeToWindow();
  m_picture.setRenderWindow(renderWindow());
  if (!m_picture.image()->initWithResource(m_resourceId)) {
    return;
  }
  m_picture.calcSize();
  m_picture.x = 0.0F;
  m_picture.y = 0.0F;
  pictureLoaded();
  calcSize();
}

void cSkyBackground_Image::calcSize() {
  m_picture.calcSize();
  width = m_picture.width;
  height = m_picture.height;
  setSizeIsValid(true);
}

void cSkyBackground_ImageStretched::pictureLoaded() {
  if (picture().width > 0.0F && picture().height > 0.0F) {
    picture().resizeImage(wholePixel(windowWidth), wholePixel(windowHeight));
    logInfo().addf("skyBackground resizedTo: %i x %i", wholePixel(picture().width),
                   wholePixel(picture().height));
  }
}

void cSkyBackground_ImageStretched::drawPrepared() {
  picture().draw();
}

void cSkyBackground_ImageTiled::drawPrepared() {
  // Without a picture there is no step to go on by.
  if (windowWidth <= 0.0F || width <= 0.0F || height <= 0.0F) {
    return;
  }
  for (float tileX = 0.0F; tileX < windowWidth; tileX += width) {
    for (float tileY = 0.0F; tileY < windowHeight; tileY += height) {
      picture().x = tileX;
      picture().y = tileY;
      picture().draw();
    }
  }
}
