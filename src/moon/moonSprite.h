// The picture of the moon, darkened once for the present phase.
#pragma once

#include <cstdint>
#include <string>

#include "moon/moonInfo.h"
#include "sprites/spriteImage.h"

class cMoonSprite : public TorvSpriteImage_ownedImg {
 public:
  // Asks the clock which phase it is. Black pixels of the picture will not be drawn.
  cMoonSprite();

  // Loads the picture for a setting of 50, 200 or 300 pixels, of 100 for anything else, and takes its size.
  // False (and an error entry) where that fails; the sprite then is as it was.
  bool loadMoonImage(int size);
  // Darkens the loaded picture. Called once, after it was loaded.
  void illuminate();
  // The brightness of one pixel of the picture, in [0, 1]; 0 outside the disc. Before the process's first
  // illuminate() as at full moon.
  float pixelIllumination(int column, int row) const;

  const cMoonInfo& moonInfo() const { return m_moonInfo; }

 private:
  cMoonInfo m_moonInfo;
  std::string m_text;  // not drawn
};
