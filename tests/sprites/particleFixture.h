// What the tests of particles and of their restrictions share: a particle of 10 x 5 pixels and an area.
#pragma once

#include "harness/privateFolders.h"
#include "sprites/moveRestriction.h"
#include "sprites/particle.h"

class Particles : public PrivateFolders {
 protected:
  Particles() {
    particle.width = 10.0F;
    particle.height = 5.0F;
  }
  void moveTimes(int times, float seconds = 0.1F) {
    for (int i = 0; i < times; ++i) {
      particle.move(seconds);
    }
  }
  void place(float x, float y, float speedX, float speedY) {
    particle.x = x;
    particle.y = y;
    particle.speedX = speedX;
    particle.speedY = speedY;
  }

  TorvParticle particle;
  xplRect<int> area{20, 10, 100, 80};  // top 20, left 10, right 110, bottom 100
  TorvMoveRestriction_BounceInsideRect bounce{&area};
  TorvMoveRestriction_ContinueInsideRect wrap{&area};
};
