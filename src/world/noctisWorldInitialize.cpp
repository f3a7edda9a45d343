// Places everything in the sky and registers it in drawing order.
#include <algorithm>

#include "support/log.h"
#include "support/random.h"
#include "world/guarded.h"
#include "world/noctisWorld.h"
#include "world/skyBackgroundFactory.h"

namespace {

constexpr float starSpeed = 0.2F;  // pixels per second, the largest in each direction

constexpr float bottomLineSpeed = -54.0F;  // pixels per second: it scrolls to the left
constexpr int bottomLineSmallestText = 8;  // points

// Deliberate: an eightieth of the window's height in pixels is taken as a size in points, so that the text
// comes out a third higher than an eightieth on most screens. How long the line takes to scroll through, and
// so when the next message may come, depends on it; do not convert it.
int bottomLineTextHeight(int windowHeight) {
  return std::max(windowHeight / 80, bottomLineSmallestText);
}

}  // namespace

void TnoctisWorld::initializeWorld() {
  const logFunctionLife block("initializeWorld()");
  guarded("initializeBackground() exception", [this] { initializeBackground(); });
  initializeStars();
  initializeMsgStars();
  initializeMoon();
  // Out of sight, and so not in the director either; who measures the program adds it there for the while.
  m_frameRateLabel.disable();
  guarded("initializeBottomLine() exception", [this] { initializeBottomLine(); });
  guarded("initializeMoonInfoLabel() exception", [this] { initializeMoonInfoLabel(); });
  guarded("initializeQuotesLabel() exception", [this] { initializeQuotesLabel(); });
  initializeAirplanes();
  m_spriteDirector.setRenderWindowAll(m_window);
}

void TnoctisWorld::initializeBackground() {
  auto background = cSkyBackgroundFactory::create();
  if (background != nullptr) {
    m_skyBackground = background.get();
    m_backgrounds.push_back(std::move(background));
    m_spriteDirector.addSprite(*m_skyBackground);
  }
}

void TnoctisWorld::initializeStars() {
  const TorvPoint topLeft{static_cast<float>(m_windowRect.left), static_cast<float>(m_windowRect.top)};
  const TorvPoint bottomRight{static_cast<float>(m_windowRect.getRight()),
                              static_cast<float>(m_windowRect.getBottom())};
  for (auto& star : m_stars) {
    star->calcSize();  // so that it lies wholly inside, and wraps only when it is wholly outside
    star->setRandomPosition(topLeft, bottomRight);
    star->speedX = xplRandom::between(-starSpeed, starSpeed);
    star->speedY = xplRandom::between(-starSpeed, starSpeed);
    star->addMoveRestriction(m_continueInsideWindow);
    m_spriteDirector.addSprite(*star);
  }
}

void TnoctisWorld::initializeMsgStars() {
  for (auto& star : m_msgStars) {
    m_spriteDirector.addSprite(*star);
  }
  m_msgStarDirector.prepare();
}

void TnoctisWorld::initializeBottomLine() {
  m_bottomLine.speedX = bottomLineSpeed;
  m_bottomLine.speedY = 0.0F;
  logInfo().addf("bottomLine default height:%i", m_bottomLine.style.fontSize);
  m_bottomLine.style.useWindowFontSize = false;
  m_bottomLine.style.fontSize = bottomLineTextHeight(m_windowRect.height);
  m_spriteDirector.addSprite(m_bottomLine);
  parkBottomLine();
  m_bottomLine.y =
      std::min(0.95F * static_cast<float>(m_windowRect.height), static_cast<float>(m_windowRect.height - 22));
  m_bottomLine.disable();
}

void TnoctisWorld::initializeAirplanes() {
  for (auto& airplane : m_airplanes) {
    m_spriteDirector.addSprite(airplane);
    airplane.addMoveRestriction(m_continueInsideWindow);
  }
}
