// The ordered list of sprites that are updated and drawn together.
#pragma once

#include <vector>

#include "sprites/sprite.h"

// Borrows its sprites, which must outlive the last call.
class TorvSpriteDirector {
 public:
  // Updates every sprite, in list order, also those that are not shown; seconds.
  virtual void updateAll(float elapsedSec);
  // Draws every sprite that is shown, in list order: later ones lie over earlier ones.
  virtual void drawAll();
  virtual void setRenderWindowAll(xplWindow* window);

  void addSprite(TorvSprite& sprite) { m_sprites.push_back(&sprite); }
  // In drawing order, back to front.
  const std::vector<TorvSprite*>& sprites() const { return m_sprites; }

 private:
  std::vector<TorvSprite*> m_sprites;
};
