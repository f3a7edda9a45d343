// What lies behind everything in the sky and covers the whole window.
#pragma once

#include "sprites/spriteImage.h"

// A background prepares itself on its first draw.
class cSkyBackground : public TorvSprite {
 public:
  cSkyBackground() : TorvSprite("cSkyBackground") {}

  void draw() override;
  void calcSize() override;
  // Takes over the window's size (pixels) and the place (0, 0).
  virtual void resizeToWindow();
  virtual ~cSkyBackground() = default;

 protected:
  // Draws what has been prepared.
  virtual void drawPrepared() = 0;
  float windowWidth = 0.0F;
  float windowHeight = 0.0F;

 private:
  bool m_needsInit = true;
};

// One colour all over.
class cSkyBackground_SolidColor : public cSkyBackground {
 public:
  explicit cSkyBackground_SolidColor(xplColor color) : m_color(color) {}

 protected:
  void drawPrepared() override;

 private:
  xplColor m_color;
};

// A picture of the program's own: its bitmap resource and the name of its file.
struct sPictureResource {
  int id;
  const char* filename;
};

class cSkyBackground_Image : public cSkyBackground {
 public:
  // blockName: what the preparation is called in the log; a literal.
  cSkyBackground_Image(sPictureResource resource, const char* blockName)
      : m_picture(resource.filename), m_resourceId(resource.id), m_blockName(blockName) {}

  // A picture that cannot be loaded leaves the background undrawn; the image has logged why.
  void resizeToWindow() override;
  void calcSize() override;

 protected:
  // Called once the picture is there.
  virtual void pictureLoaded() {}
  TorvSpriteImage_ownedImg& picture() { return m_picture; }

 private:
  TorvSpriteImage_ownedImg m_picture;
  int m_resourceId;
  const char* m_blockName;
};

// The picture stretched to the window, once.
class cSkyBackground_ImageStretched : public cSkyBackground_Image {
 public:
  cSkyBackground_ImageStretched()
      : cSkyBackground_Image({123, "background-blue-gradient.bmp"},
                             "cSkyBackground_ImageStretched.initialize()") {}

 protected:
  void drawPrepared() override;
  void pictureLoaded() override;
};

// The picture repeated from the top left.
class cSkyBackground_ImageTiled : public cSkyBackground_Image {
 public:
  cSkyBackground_ImageTiled()
      : cSkyBackground_Image({124, "background-starry-tiled.bmp"}, "cSkyBackground_ImageTiled.initialize()") {
  }

 protected:
  void drawPrepared() override;
};
