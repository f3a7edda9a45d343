// Prepares and draws the backgrounds.
#include "world/skyBackground.h"

#include "sprites/wholePixel.h"
#include "support/log.h"

bool cSkyBackground::prepare() {
  if (renderWindow() == nullptr) {
    return false;
  }
  if (m_needsInit) {
    m_needsInit = false;
    resizeToWindow();
  }
  return true;
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

void cSkyBackground_SolidColor::draw() {
  if (prepare()) {
    // Not fillWindow: it fills the place that the window has on the screen, not the window from its own
    // corner.
    renderWindow()->fillRect(xplRect<int>(0, 0, wholePixel(windowWidth), wholePixel(windowHeight)), m_color);
  }
}

bool cSkyBackground_Image::loadPicture() {
  cSkyBackground::resizeToWindow();
  m_picture.setRenderWindow(renderWindow());
  if (!m_picture.image()->initWithResource(m_resourceId)) {
    return false;
  }
  m_picture.x = 0.0F;
  m_picture.y = 0.0F;
  calcSize();
  return true;
}

void cSkyBackground_Image::calcSize() {
  m_picture.calcSize();
  width = m_picture.width;
  height = m_picture.height;
  setSizeIsValid(true);
}

void cSkyBackground_ImageStretched::resizeToWindow() {
  const logTimeCountrer block("cSkyBackground_ImageStretched.initialize()");
  if (loadPicture() && width > 0.0F && height > 0.0F) {
    picture().resizeImage(wholePixel(windowWidth), wholePixel(windowHeight));
    calcSize();
    logInfo().addf("skyBackground resizedTo: %i x %i", wholePixel(picture().width),
                   wholePixel(picture().height));
  }
}

void cSkyBackground_ImageStretched::draw() {
  if (prepare() && disabledCount() < 1) {
    picture().draw();
  }
}

void cSkyBackground_ImageTiled::resizeToWindow() {
  const logTimeCountrer block("cSkyBackground_ImageTiled.initialize()");
  loadPicture();
}

void cSkyBackground_ImageTiled::draw() {
  // Without a picture there is no step to go on by.
  if (!prepare() || disabledCount() > 0 || windowWidth <= 0.0F || width <= 0.0F || height <= 0.0F) {
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
