// Makes the sky and everything in it, moves it and draws it.
#include "world/noctisWorld.h"

#include "support/log.h"
#include "support/random.h"

namespace {

constexpr float starPulseDuration = 2.0F;   // seconds
constexpr float starRestDuration = 100.0F;  // seconds
constexpr float starAmplitude = 0.6F;
constexpr float starDimmest = 0.05F;
constexpr float starBrightest = 0.4F;

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

void TnoctisWorld::update(float elapsedSec) {
  m_spriteDirector.updateAll(elapsedSec);
}

void TnoctisWorld::draw() {
  m_spriteDirector.drawAll();
}
