// Draws the television's last second.
#include "world/oldTvEffect.h"

namespace {

constexpr xplColor dark(5, 5, 16);
constexpr xplColor white(255, 255, 255);
constexpr int bandFrames = 10;  // in which a band grows over half the window
constexpr int lineFrames = 8;   // in which each end of the line comes to the middle
constexpr int dotStep = 4;      // pixels a frame

}  // namespace

sOldTvProgress& sOldTvProgress::ofProcess() {
  static sOldTvProgress progress;
  return progress;
}

void cWindowTransitionEffect_OldTV::initWithWindow(xplWindow* window, std::int32_t monitorId) {
  cWindowTransitionEffect_base::initWithWindow(window, monitorId);
  m_centerX = getWidth() / 2;
  m_centerY = getHeight() / 2;
  m_bandStep = m_centerY / bandFrames;
  m_band = xplRect<int>(0, 0, getWidth(), m_bandStep);
  if (window != nullptr) {
    window->setUseBackBuffer(false);
  }
}

void cWindowTransitionEffect_OldTV::draw() {
  if (finished()) {
    return;
  }
  if (window() == nullptr) {
    setFinished();
    return;
  }
  switch (m_phase) {
    case Phase::closingBands:
      drawBands();
      break;
    case Phase::shrinkingLine:
      drawLine();
      break;
    case Phase::shrinkingDot:
      drawDot();
      break;
  }
}

void cWindowTransitionEffect_OldTV::drawBands() {
  m_band.top = 0;
  window()->fillRect(m_band, dark);
  m_band.top = getHeight() - m_band.height;
  window()->fillRect(m_band, dark);
  // In a window too low for a step of a pixel the bands would never meet.
  if (m_centerY <= m_band.height || m_bandStep == 0) {
    m_phase = Phase::shrinkingLine;
    return;
  }
  m_band.height += m_bandStep;
}

void cWindowTransitionEffect_OldTV::drawLine() {
  if (!m_progress.lineIsMeasured) {
    m_progress.lineIsMeasured = true;
    m_progress.lineLength = getWidth();
    m_progress.lineStep = m_centerX / lineFrames;
  }
  window()->fillWindow(dark);
  window()->drawLine(m_progress.lineStart, m_centerY, m_progress.lineStart + m_progress.lineLength, m_centerY,
                     1, white);
  m_progress.lineStart += m_progress.lineStep;
  m_progress.lineLength -= 2 * m_progress.lineStep;
  // In a window too narrow for a step of a pixel the line would never shrink.
  if (m_centerX < m_progress.lineStart || m_progress.lineStep == 0) {
    m_phase = Phase::shrinkingDot;
  }
}

void cWindowTransitionEffect_OldTV::drawDot() {
  if (m_progress.dotRadius > 0) {
    window()->fillWindow(dark);
    window()->fillCircle(m_centerX, m_centerY, m_progress.dotRadius, white);
    m_progress.dotRadius -= dotStep;
    if (m_progress.dotRadius > 0) {
      return;
    }
  }
  finish();
}

// The fill goes to the back buffer, so that the last dot stays on the screen until the next flush.
void cWindowTransitionEffect_OldTV::finish() {
  setFinished();
  window()->setUseBackBuffer(true);
  window()->fillWindow(dark);
}
