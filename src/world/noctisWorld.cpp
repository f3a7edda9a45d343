// Makes the sky and everything in it, moves it and draws it.
#include "world/noctisWorld.h"

#include <utility>

#include "support/assertion.h"
#include "support/log.h"
#include "support/random.h"

namespace {

constexpr float starPulseDuration = 2.0F;   // seconds
constexpr float starRestDuration = 100.0F;  // seconds
constexpr float starAmplitude = 0.6F;
constexpr float starDimmest = 0.05F;
constexpr float starBrightest = 0.4F;

constexpr float msgStarPulseDuration = 2.5F;  // seconds
constexpr float msgStarRestDuration = 30.0F;  // seconds
constexpr float msgStarAmplitude = 0.5F;
constexpr float msgStarDimmest = 0.3F;
constexpr float msgStarBrightest = 0.5F;

constexpr float messageDuration = 30.0F;  // seconds from one message's start until the next may come
constexpr int randomChoiceOdds = 20;      // one message in so many is chosen at random

// The entry names the condition in the words by which it is looked for.
void reportMissingMessage() {
  if (xplAssertionsReport) {
    xplReportFailedAssertion("m && _T(\"#8662: msgStarDirector.getMsg() returned NULL\")",
                             "#8662: msgStarDirector.getMsg() returned NULL", "noctisWorld", __LINE__);
  }
}

}  // namespace

TnoctisWorld::TnoctisWorld(xplWindow* window, std::int32_t monitorId,
                           const std::vector<xplRect<int>>& monitorList, const std::string& containerFolder,
                           std::unique_ptr<xpliSoundOutput> soundOutput)
    : m_monitorId(monitorId),
      m_soundPlayer(monitorId == previewMonitorId ? nullptr : std::move(soundOutput)),
      m_window(window),
      m_monitorList(&monitorList),
      m_containerFolder(containerFolder) {
  createStars();
  createMsgStars();
  if (m_window != nullptr) {
    takeOverWindow();
  }
  if (m_monitorId != previewMonitorId) {
    m_soundPlayer.startBackgroundSound();
  }
}

TnoctisWorld::~TnoctisWorld() {
  const logFunctionLife block("TnoctisWorld.destructor()");
  for (auto& star : m_stars) {
    star.reset();
  }
  logInfo().add("Deleted stars[]");
  for (auto& star : m_msgStars) {
    star.reset();
  }
  logInfo().add("Deleted msgStars[]");
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

void TnoctisWorld::createMsgStars() {
  const logTimeCountrer block("creating thousands of message stars");
  for (auto& star : m_msgStars) {
    const float brightness = xplRandom::between(msgStarDimmest, msgStarBrightest);
    star =
        std::make_unique<cMsgStar>(msgStarPulseDuration, brightness, msgStarAmplitude, msgStarRestDuration);
  }
}

void TnoctisWorld::takeOverWindow() {
  m_backgroundColor = xplColor::fromValue(0x00008BFF).scaledBy(0.1F);
  m_window->backgroundColor.push(m_backgroundColor);
  // Deliberate: in its own coordinates, wherever it lies on the screen; all that is drawn is placed so. The
  // monitors' rectangles stay in screen coordinates.
  m_windowRect = xplRect<int>(0, 0, m_window->getWidth(), m_window->getHeight());
  if (m_monitorList->empty()) {
    logError().add("#4714: m_MonitorList size <1");
  } else {
    m_mainMonitorRect = m_monitorList->front();
  }
  findMainMonitorInWindow();
  logInfo().addf("m_windowRect.left=%i, top=%i, w=%i h=%i", m_windowRect.left, m_windowRect.top,
                 m_windowRect.width, m_windowRect.height);
  logInfo().addf("m_mainMonitorRect.left=%i, top=%i, w=%i h=%i", m_mainMonitorRect.left,
                 m_mainMonitorRect.top, m_mainMonitorRect.width, m_mainMonitorRect.height);
}

void TnoctisWorld::update(float elapsedSec) {
  m_spriteDirector.updateAll(elapsedSec);
  centerLabelUnderMoon();
  keepQuotesClearOfTheMoon();
  if (isNextMessageDue()) {
    applyNextMessage();
  }
  m_msgStarDirector.advance(elapsedSec);
  if (const auto* transition = m_msgStarDirector.transition();
      transition != nullptr && transition->isRunning()) {
    parkBottomLine();
  }
  m_soundPlayer.checkHourlySound(elapsedSec);
}

// A transition whose clock still stands at exactly 0 lets the next message through at once.
bool TnoctisWorld::isNextMessageDue() const {
  const auto* transition = m_msgStarDirector.transition();
  const bool starsAreFree =
      transition == nullptr || transition->elapsed() > messageDuration || transition->elapsed() == 0.0F;
  const bool lineIsThrough =
      !m_bottomLine.isEnabled() || m_bottomLine.getRight() < static_cast<float>(m_windowRect.left);
  return m_msgStarDirector.hasMessages() && starsAreFree && lineIsThrough;
}

void TnoctisWorld::applyNextMessage() {
  logInfo().add("msgStarDirector.applyNextMessage()");
  if (!m_msgStarDirector.hasMessages()) {
    return;
  }
  const int lot = xplRandom::next();
  if (lot % randomChoiceOdds == 0) {
    m_msgStarDirector.chooseRandomMessage();
  }
  const sMessage* message = m_msgStarDirector.getMsg();
  if (message == nullptr) {
    reportMissingMessage();
    return;
  }
  m_msgStarDirector.project(message->message, m_windowRect);
  m_msgStarDirector.startTransition(m_windowRect, m_msgStars);
  m_bottomLine.setText(message->bottomLine);
  m_bottomLine.calcSize();
  parkBottomLine();
  if (!m_bottomLine.isEnabled()) {
    m_bottomLine.enable();
  }
}

void TnoctisWorld::parkBottomLine() {
  m_bottomLine.x = static_cast<float>(m_windowRect.getRight() + 1);
}

void TnoctisWorld::draw() {
  m_spriteDirector.drawAll();
}
