// Twinkles stars.
#include "world/twinkleStar.h"

#include <algorithm>

#include "support/random.h"

namespace {

float clampToUnit(float value) {
  return std::clamp(value, 0.0F, 1.0F);
}

}  // namespace

cTwinkleStarSprite::cTwinkleStarSprite(float averageTwinkleDuration, const char* name, float brightness,
                                       float amplitude, float averageRestDuration)
    : TorvSprite(name),
      m_brightness(clampToUnit(brightness)),
      m_baseBrightness(m_brightness),
      m_twinkleAmplitude(clampToUnit(amplitude)),
      m_twinkleDuration(xplRandom::between(0.7F * averageTwinkleDuration, 1.3F * averageTwinkleDuration)),
      m_restDuration(xplRandom::between(0.9F * averageRestDuration, 1.1F * averageRestDuration)),
      m_phase(xplRandom::between(0.0F, m_twinkleDuration + m_restDuration)) {}

void cTwinkleStarSprite::setBrightness(float brightness) {
  m_brightness = clampToUnit(brightness);
}

void cTwinkleStarSprite::update(float elapsedSec) {
  move(elapsedSec);
  twinkle(elapsedSec);
}

void cTwinkleStarSprite::twinkle(float elapsedSec) {
  const float cycle = m_twinkleDuration + m_restDuration;
  m_phase += elapsedSec;
  // The second condition ends a loop whose steps are lost in rounding.
  while (m_phase > cycle && m_phase - cycle < m_phase) {
    m_phase -= cycle;
  }
  float factor = 0.0F;
  if (m_phase <= m_twinkleDuration / 2.0F) {
    factor = 2.0F * m_phase / m_twinkleDuration;
  } else if (m_phase <= m_twinkleDuration) {
    factor = 2.0F - 2.0F * m_phase / m_twinkleDuration;
  }
  const float target = clampToUnit(m_twinkleAmplitude * factor + m_baseBrightness);
  if (target != m_brightness) {
    setBrightness(target);
  }
}
