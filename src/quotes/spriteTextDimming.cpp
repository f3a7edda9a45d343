// Dims a line of text.
#include "quotes/spriteTextDimming.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "graphics/wrapping.h"
#include "quotes/platform.h"
#include "sprites/wholePixel.h"

namespace {

constexpr int fullBrightness = 100;  // percent

// Deliberate: the steps are taken once a frame, whatever time has passed, while the hold is timed. The fades
// run faster and slower with the frame rate, and always look even.
constexpr int stepIn = 2;
constexpr int stepOut = 12;

constexpr std::int64_t leastHoldMs = 4000;
constexpr std::int64_t holdPerCharacterMs = 80;

int holdTimeFor(const std::string& text, int minHoldMs) {
  const auto characters = static_cast<std::int64_t>(quotesPlatform::characterCount(text));
  const std::int64_t holdMs =
      std::max<std::int64_t>(characters * holdPerCharacterMs + leastHoldMs, minHoldMs);
  return static_cast<int>(std::min<std::int64_t>(holdMs, std::numeric_limits<int>::max()));
}

}  // namespace

void cSpriteTextDimming::setStyle(const TorvTextStyle& newStyle) {
  style = newStyle;
  m_fullColor = newStyle.textColor;
}

void cSpriteTextDimming::start(float startX, float startY, int minHoldMs) {
  calcSize();
  x = startX;
  y = startY;
  m_brightness = 0;
  m_state = fadingIn;
  m_timer = 0;
  m_holdTime = holdTimeFor(text(), minHoldMs);
}

void cSpriteTextDimming::fadeOut() {
  m_state = fadingOut;
}

void cSpriteTextDimming::update(float elapsedSec) {
  m_timer = wrappingSum(m_timer, wholePixel(elapsedSec * 1000.0F));
  if (elapsedSec == elapsedSec) {
    move(elapsedSec);
  }
  switch (m_state) {
    case fadingIn:
      fadeIn();
      break;
    case holding:
      if (m_timer > m_holdTime) {
        m_state = fadingOut;
      }
      break;
    case fadingOut:
      fadeFurtherOut();
      break;
    default:
      break;
  }
}

void cSpriteTextDimming::applyBrightness() {
  style.textColor = m_fullColor.scaledBy(static_cast<float>(m_brightness) / fullBrightness);
}

void cSpriteTextDimming::fadeIn() {
  applyBrightness();
  if (m_brightness == fullBrightness) {
    m_state = holding;
    m_timer = 0;
  } else {
    m_brightness = std::min(m_brightness + stepIn, fullBrightness);
  }
}

void cSpriteTextDimming::fadeFurtherOut() {
  applyBrightness();
  if (m_brightness == 0) {
    m_state = done;
  } else {
    m_brightness = std::max(m_brightness - stepOut, 0);
  }
}
