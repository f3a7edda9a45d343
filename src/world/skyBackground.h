// What lies behind everything in the sky and covers the whole window.
#pragma once

#include "sprites/spriteImage.h"

// A background prepares itself on its first draw. Without a window it draws nothing.
class cSkyBackground : public TorvSprite {
 public:
  cSkyBackground() : TorvSprite("cSkyBackground") {}

  void calcSize() override;
  // Takes over the window's size (pixels) and the place (0, 0). Called with a window only.
  virtual void resizeToWindow();
  virtual ~cSkyBackground() = default;

 protected:
  // Prepares on the first call with a window; false without a window.
  bool prepare();
  float windowWidth = 0.0F;   // pixels; 0 until prepared
  float windowHeight = 0.0F;  // pixels; 0 until prepared

 private:
  bool m_needsInit = true;
};

// One colour all over.
class cSkyBackground_SolidColor : public cSkyBackground {
 public:
  explicit cSkyBackground_SolidColor(xplColor color) : m_color(color) {}

  // Deliberate: neither visibility count is asked here, unlike in the kinds with a picture. The director
  // leaves a background out that is disabled; one that is asked directly still fills the window.
  void draw() override;

 private:
  xplColor m_color;
};

// A picture of the program's own: its bitmap resource and the name of its file (a literal).
struct sPictureResource {
  int id;
  const char* filename;
};

class cSkyBackground_Image : public cSkyBackground {
 public:
  // The picture's size.
  void calcSize() override;

 protected:
  explicit cSkyBackground_Image(sPictureResource resource)
      : m_picture(resource.filename), m_resourceId(resource.id) {}

  // Takes over the window's size and loads the picture. False where it cannot be loaded: the image has logged
  // why, and nothing will be drawn.
  bool loadPicture();
  TorvSpriteImage_ownedImg& picture() { return m_picture; }

 private:
  TorvSpriteImage_ownedImg m_picture;
  int m_resourceId;
};

// The picture stretched to the window, once.
class cSkyBackground_ImageStretched : public cSkyBackground_Image {
 public:
  static constexpr sPictureResource gradient{123, "background-blue-gradient.bmp"};

  explicit cSkyBackground_ImageStretched(sPictureResource resource = gradient)
      : cSkyBackground_Image(resource) {}
  void draw() override;
  void resizeToWindow() override;
};

// The picture repeated from the top left; the window clips the last column and row.
class cSkyBackground_ImageTiled : public cSkyBackground_Image {
 public:
  static constexpr sPictureResource starryTile{124, "background-starry-tiled.bmp"};

  explicit cSkyBackground_ImageTiled(sPictureResource resource = starryTile)
      : cSkyBackground_Image(resource) {}
  void draw() override;
  void resizeToWindow() override;
};
