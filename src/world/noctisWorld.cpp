// Builds the sky, moves it and draws it.
#include "world/noctisWorld.h"

#include <algorithm>

#include "support/log.h"
#include "support/random.h"
#include "world/guarded.h"
#include "world/skyBackgroundFactory.h"

namespace {

constexpr float starPulseDuration = 2.0F;   // seconds
constexpr float starRestDuration = 100.0F;  // seconds
constexpr float starAmplitude = 0.6F;
constexpr float starDimmest = 0.05F;
constexpr float starBrightest = 0.4F;
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

TnoctisWorld::TnoctisWorld(xplWindow* window, std::int32_t monitorId,
                           const std::vector<xplRect<int>>& monitorList, const std::string& containerFolder)
    : m_monitorId(monitorId),
      m_window(window),
      m_monitorList(&monitorList),
      m_containerFolder(containerFolder) {
  createStars();
  if (m_window != nullptr) {
    takeOverWindow();
  }
}

TnoctisWorld::~TnoctisWorld() {
  const logFunctionLife block("TnoctisWorld.destructor()");
  for (auto& star : m_stars) {
    star.reset();
  }
  logInfo().add("Deleted stars[]");
  m_skyBackground = nullptr;
  m_backgrounds.clear();
  logInfo().add("Deleted m_backgroundPtr[]");
}

void TnoctisWorld::createStars() {
  for (auto& star : m_stars) {
    const float brightness = xplRandom::between(starDimmest, starBrightest);
    star = std::make_unique<cStarSpriteWithPixels>(starPulseDuration, "normal star", brightness,
                                                   starAmplitude, starRestDuration);
  }
}

void TnoctisWorld::takeOverWindow() {
  m_backgroundColor = xplColor::fromValue(0x00008BFF).scaledBy(0.1F);
  m_window->backgroundColor.push(m_backgroundColor);
  m_windowRect = xplRect<int>(0, 0, m_window->getWidth(), m_window->getHeight());
  if (m_monitorList->empty()) {
    logError().add("#4714: m_MonitorList size <1");
  } else {
    m_mainMonitorRect = m_monitorList->front();
  }
  logInfo().addf("m_windowRect.left=%i, top=%i, w=%i h=%i", m_windowRect.left, m_windowRect.top,
                 m_windowRect.width, m_windowRect.height);
  logInfo().addf("m_mainMonitorRect.left=%i, top=%i, w=%i h=%i", m_mainMonitorRect.left,
                 m_mainMonitorRect.top, m_mainMonitorRect.width, m_mainMonitorRect.height);
}

void TnoctisWorld::initializeWorld() {
  const logFunctionLife block("initializeWorld()");
  guarded("initializeBackground() exception", [this] { initializeBackground(); });
  initializeStars();
  guarded("initializeBottomLine() exception", [this] { initializeBottomLine(); });
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

void TnoctisWorld::initializeBottomLine() {
  m_bottomLine.speedX = bottomLineSpeed;
  m_bottomLine.speedY = 0.0F;
  logInfo().addf("bottomLine default height:%i", m_bottomLine.style.fontSize);
  m_bottomLine.style.useWindowFontSize = false;
  m_bottomLine.style.fontSize = bottomLineTextHeight(m_windowRect.height);
  m_spriteDirector.addSprite(m_bottomLine);
  m_bottomLine.x = static_cast<float>(m_windowRect.getRight() + 1);
  m_bottomLine.y =
      std::min(0.95F * static_cast<float>(m_windowRect.height), static_cast<float>(m_windowRect.height - 22));
  m_bottomLine.disable();
}

void TnoctisWorld::update(float elapsedSec) {
  m_spriteDirector.updateAll(elapsedSec);
}

void TnoctisWorld::draw() {
  m_spriteDirector.drawAll();
}
