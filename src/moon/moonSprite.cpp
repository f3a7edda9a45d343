// Loads and darkens the moon's picture.
#include "moon/moonSprite.h"

#include <mutex>

#include "moon/moonShading.h"
#include "sprites/wholePixel.h"
#include "support/clock.h"
#include "support/log.h"

namespace {

constexpr xplColor outsideTheDisc(0, 0, 0);

int resourceOf(int size) {
  switch (size) {
    case 50:
      return 118;
    case 200:
      return 121;
    case 300:
      return 122;
    default:
      return 120;
  }
}

// Deliberate: the phase of the process's first moon shades every later one too, however much later it is
// made, so that a moon never differs from the one beside it. Do not take each sprite's own.
class ShadingPhase {
 public:
  static void takeOnce(std::int32_t phase) {
    std::call_once(m_taken, [phase] { m_phase = phase; });
  }
  static std::int32_t value() { return m_phase; }

 private:
  inline static std::once_flag m_taken;
  inline static std::int32_t m_phase = 0;  // degrees since the full moon
};

}  // namespace

cMoonSprite::cMoonSprite() : TorvSpriteImage_ownedImg("moonSprite"), m_moonInfo(xplClock::now()) {
  // The pictures are black outside the disc and stay exactly so when they are darkened: no square shows on
  // any sky.
  image()->setTransparentColor(outsideTheDisc);
}

bool cMoonSprite::loadMoonImage(int size) {
  if (!image()->initWithResource(resourceOf(size))) {
    return false;
  }
  calcSize();
  return true;
}

// Deliberate: the moon is lit as it is seen from the north of the earth, wherever the user has chosen to be
// ("fromSouthHemisphere"). The picture's seas would have to be turned with it.
void cMoonSprite::illuminate() {
  const logTimeCountrer block("cMoonSprite.illuminate() classic");
  if (image() == nullptr) {
    return;
  }
  logInfo().addf("moon size:%ipx", wholePixel(static_cast<double>(width)));
  ShadingPhase::takeOnce(m_moonInfo.phase());
  shadeMoon(*image(), width, height, ShadingPhase::value());
}

float cMoonSprite::pixelIllumination(int column, int row) const {
  return moonPixelIllumination(column, row, width, ShadingPhase::value());
}
