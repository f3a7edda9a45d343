// Sprites that are a picture: one that links to somebody's image, one that owns its image.
#pragma once

#include "graphics/image.h"
#include "sprites/sprite.h"

class TorvSpriteImage_linkedImg : public TorvSprite {
 public:
  using TorvSprite::TorvSprite;

  // Deliberate: only disabledCount is asked here, unlike in text sprites. A picture that is merely hidden is
  // left out by the director, but draws itself when it is asked directly, as a background asks its picture.
  void draw() override;
  void calcSize() override;
  // Resizes the image (pixels) and takes its new size at once; nothing without an image.
  virtual void resizeImage(int newWidth, int newHeight);

  // Borrows the image, which must outlive the sprite's last use of it; null for none.
  void linkImage(xplImage* image) { m_image = image; }
  xplImage* image() const { return m_image; }

 private:
  xplImage* m_image = nullptr;
};

class TorvSpriteImage_ownedImg : public TorvSpriteImage_linkedImg {
 public:
  explicit TorvSpriteImage_ownedImg(const char* name) : TorvSpriteImage_linkedImg(name) {
    linkImage(&m_ownImage);
  }

 private:
  xplImage m_ownImage;
};
