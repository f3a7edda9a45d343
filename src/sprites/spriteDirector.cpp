// Updates and draws the sprites.
#include "sprites/spriteDirector.h"

void TorvSpriteDirector::updateAll(float elapsedSec) {
  for (TorvSprite* sprite : m_sprites) {
    sprite->update(elapsedSec);
  }
}

void TorvSpriteDirector::drawAll() {
  for (TorvSprite* sprite : m_sprites) {
    if (sprite->isShown()) {
      sprite->draw();
    }
  }
}

void TorvSpriteDirector::setRenderWindowAll(xplWindow* window) {
  for (TorvSprite* sprite : m_sprites) {
    sprite->setRenderWindow(window);
  }
}
