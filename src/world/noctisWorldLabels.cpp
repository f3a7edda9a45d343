// Places the moon, the text beside it and the quotes.
#include <algorithm>

#include "quotes/quotes.h"
#include "support/clock.h"
#include "support/log.h"
#include "world/noctisWorld.h"

namespace {

constexpr int previewMoonSize = 50;  // pixels
constexpr float moonLeft = 0.7F;     // of the window's width
constexpr float moonTop = 0.12F;     // of the window's height
constexpr float moonSpeed = 0.1F;    // pixels per second

constexpr int previewLabelDivisor = 3;  // of the size of the label's letters in the preview

xplRect<int> intersection(const xplRect<int>& a, const xplRect<int>& b) {
  xplRect<int> common;
  common.left = std::max(a.left, b.left);
  common.top = std::max(a.top, b.top);
  common.setRight(std::min(a.getRight(), b.getRight()));
  common.setBottom(std::min(a.getBottom(), b.getBottom()));
  return common;
}

// The nearest place at which an extent lies wholly between two edges; at the first where it is too large.
float clampedInto(float place, float extent, int first, int last) {
  const float nearestLast = static_cast<float>(last) - extent;
  return std::max(std::min(place, nearestLast), static_cast<float>(first));
}

xplRect<float> rectangleOf(const TorvSprite& sprite) {
  return {sprite.top, sprite.left, sprite.width, sprite.height};
}

}  // namespace

void TnoctisWorld::findMainMonitorInWindow() {
  xplRect<int> monitor = m_mainMonitorRect;
  monitor.left -= m_window->getLeft();
  monitor.top -= m_window->getTop();
  m_mainMonitorInWindow = intersection(monitor, m_windowRect);
}

void TnoctisWorld::followMonitors() {
  if (m_window == nullptr || m_monitorId == previewMonitorId) {
    return;
  }
  const xplRect<int> before = m_mainMonitorRect;
  for (const xplRect<int>& monitor : *m_monitorList) {
    m_mainMonitorRect = monitor;
    findMainMonitorInWindow();
    if (isMoonKeptOnMainMonitor()) {
      const xplRect<int>& area = m_mainMonitorInWindow;
      m_moon.x = clampedInto(m_moon.x, m_moon.width, area.left, area.getRight());
      m_moon.y = clampedInto(m_moon.y, m_moon.height, area.top, area.getBottom());
      return;
    }
  }
  m_mainMonitorRect = before;
  findMainMonitorInWindow();
}

// The preview is a small window somewhere on a monitor, and so may be a window that another program gave.
bool TnoctisWorld::isMoonKeptOnMainMonitor() const {
  return m_monitorId != previewMonitorId && m_mainMonitorInWindow.width > 0 &&
         m_mainMonitorInWindow.height > 0;
}

void TnoctisWorld::initializeMoon() {
  const logTimeCountrer block("initializeMoon()");
  if (!m_moonSettings.showMoon.read()) {
    logInfo().add("moon is disabled");
    return;
  }
  const int size = m_monitorId == previewMonitorId ? previewMoonSize : m_moonSettings.moonSize.read();
  const bool isLoaded = m_moon.loadMoonImage(size);  // says why, where not
  placeMoon();                                       // also where it does not show: the label hangs on it
  if (isLoaded) {
    m_moon.illuminate();
    m_spriteDirector.addSprite(m_moon);
  }
}

void TnoctisWorld::placeMoon() {
  const xplRect<int>& area = isMoonKeptOnMainMonitor() ? m_mainMonitorInWindow : m_windowRect;
  m_moon.x = clampedInto(moonLeft * static_cast<float>(m_windowRect.width), m_moon.width, area.left,
                         area.getRight());
  m_moon.y = clampedInto(moonTop * static_cast<float>(m_windowRect.height), m_moon.height, area.top,
                         area.getBottom());
  m_moon.speedX = moonSpeed;
  m_moon.addMoveRestriction(isMoonKeptOnMainMonitor() ? m_bounceInsideMainMonitor : m_bounceInsideWindow);
}

void TnoctisWorld::initializeMoonInfoLabel() {
  const bool hasContent = m_moonSettings.showMoonPhasePercentAndDegrees.read() ||
                          m_moonSettings.showMoonPhaseName.read() || m_moonSettings.showNotableDates.read();
  if (!m_moonSettings.showMoon.read() || !hasContent) {
    m_moonInfoLabel.disable();
    return;
  }
  m_moonInfoLabel.fillFromMoonInfo(cMoonInfo(xplClock::now()));
  m_spriteDirector.addSprite(m_moonInfoLabel);
  if (m_monitorId == previewMonitorId) {
    m_moonInfoLabel.style.useWindowFontSize = false;
    m_moonInfoLabel.style.fontSize /= previewLabelDivisor;
  }
}

void TnoctisWorld::initializeQuotesLabel() {
  const cAppSettings settings;
  // Counting reads the user's file, which may be large: only where it is asked for.
  const bool isPreview = m_monitorId == previewMonitorId;
  const std::size_t userQuotes =
      !isPreview && settings.showQuotes_UserQuotes.read() ? cQuotes::countQuotes(quoteCategory::user) : 0;
  if (isPreview || !settings.anyQuoteCategoryOn(userQuotes)) {
    m_quotesLabel.disable();
    return;
  }
  m_quotesLabel.initialize(m_window);
  m_spriteDirector.addSprite(m_quotesLabel);
  m_quotesLabel.renderRect.left = static_cast<float>(m_windowRect.left + 20);
  m_quotesLabel.renderRect.top = static_cast<float>(m_windowRect.top + 10);
  m_quotesLabel.renderRect.width = static_cast<float>(m_windowRect.width - 20);
  m_quotesLabel.renderRect.height = static_cast<float>(m_windowRect.height - 40);
  keepQuotesClearOfTheMoon();
}

// Its text changes while it is typed, and its width with it.
void TnoctisWorld::centerLabelUnderMoon() {
  if (!m_moonInfoLabel.isEnabled()) {
    return;
  }
  if (!m_moonInfoLabel.sizeIsValid()) {
    m_moonInfoLabel.calcSize();
  }
  m_moonInfoLabel.x = m_moon.x + (m_moon.width - m_moonInfoLabel.width) * 0.5F;
  m_moonInfoLabel.y = static_cast<float>(m_moon.getBottom());
}

// The moon wanders and the label grows, so a quote keeps clear of where they are when it is placed.
void TnoctisWorld::keepQuotesClearOfTheMoon() {
  m_quotesLabel.avoidRect1 = rectangleOf(m_moon);
  m_quotesLabel.avoidRect2 = rectangleOf(m_moonInfoLabel);
}
