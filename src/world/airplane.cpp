// Flies and draws airplanes.
#include "world/airplane.h"

#include <algorithm>
#include <cmath>

#include "sprites/wholePixel.h"
#include "support/random.h"

namespace {

constexpr xplColor bodyColor(192, 192, 192);
constexpr xplColor lightColor(255, 0, 0);

// Deliberate: 3.14 stands for pi, so that a flat direction may be steeper than 45 degrees by a twentieth of a
// degree. Where each airplane flies depends on it; do not put in a better pi.
constexpr double fullTurn = 6.28;  // radians
constexpr double quarterTurn = 1.57;

// Whether the angle (radians, in [0, fullTurn)) points more up or down than to a side. The borders, 0.785,
// 2.355, 3.925 and 5.495, are computed as the angles are: one that is drawn on a border is not steep.
bool isSteep(double angle) {
  return (angle > 0.125 * fullTurn && angle < 0.375 * fullTurn) ||
         (angle > 0.625 * fullTurn && angle < 0.875 * fullTurn);
}

// The whole pixel of a place; one far beyond any window is brought nearer, so that its neighbours have
// numbers.
int drawnPixel(float place) {
  constexpr int farthest = 1 << 24;
  return std::clamp(wholePixel(place), -farthest, farthest);
}

// A random place in [0, extent), in whole pixels.
float randomPixel(int extent) {
  return static_cast<float>(wholePixel(xplRandom::unit() * static_cast<float>(extent)));
}

}  // namespace

cAirplane::cAirplane() : TorvSprite("Airplane"), m_lightClock(xplRandom::between(0.0F, lightOffDuration)) {
  chooseSpeed();
}

void cAirplane::chooseSpeed() {
  double angle = static_cast<double>(xplRandom::unit()) * fullTurn;
  if (isSteep(angle)) {
    angle -= quarterTurn;
  }
  const float speed = xplRandom::between(0.8F * averageSpeed, 1.2F * averageSpeed);
  // Rounded before they are multiplied: the platforms' cosines and sines differ in the last place of a
  // double, and come to the same in single precision for every angle that can be drawn.
  const auto cosine = static_cast<float>(std::cos(angle));
  const auto sine = static_cast<float>(std::sin(angle));
  speedX = cosine * speed;
  speedY = sine * speed;
}

void cAirplane::calcSize() {
  width = 1.0F;
  height = 1.0F;
  setSizeIsValid(true);
}

void cAirplane::update(float elapsedSec) {
  if (!m_positioned && renderWindow() != nullptr) {
    x = randomPixel(renderWindow()->getWidth());
    y = randomPixel(renderWindow()->getHeight());
    m_positioned = true;
  }
  runLight(elapsedSec);
  if (elapsedSec != 0.0F) {
    move(elapsedSec);
  }
}

void cAirplane::runLight(float elapsedSec) {
  m_lightClock += elapsedSec;
  m_lightOn = m_lightClock > lightOffDuration;
  if (m_lightClock >= lightOffDuration + lightOnDuration) {
    m_lightClock = 0.0F;
  }
}

void cAirplane::draw() {
  if (renderWindow() == nullptr) {
    return;
  }
  const int column = drawnPixel(x);
  const int row = drawnPixel(y);
  if (m_lightOn) {
    renderWindow()->fillRect(xplRect<int>(row - 1, column - 1, 3, 2), lightColor);
    return;
  }
  renderWindow()->setPixel(column + 1, row, bodyColor);
  renderWindow()->setPixel(column, row, bodyColor);
}
