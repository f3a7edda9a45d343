// Measures and tells the frame rate.
#include "world/frameRateSprite.h"

#include <limits>
#include <sstream>

#include "sprites/wholePixel.h"

namespace {

constexpr int textSize = 18;  // points
constexpr xplColor grey(128, 128, 128);

// Deliberate: the moment at which the label was first built, not that of this build. It tells apart
// screenshots of the label's versions; it changes when the label's text does.
constexpr char labelStamp[] = "May 21 2016 20:25:13";

}  // namespace

cFrameRateSprite::cFrameRateSprite() : TorvSpriteText("frameRateLabel") {
  setText("frame rate (wait...)");
  style.useWindowFontSize = false;
  style.fontSize = textSize;
  style.useWindowTextColor = false;
  style.textColor = grey;
}

void cFrameRateSprite::update(float elapsedSec) {
  move(elapsedSec);
  if (++m_frames >= framesPerMeasurement) {
    m_frames = 0;
    measure();
  }
}

void cFrameRateSprite::measure() {
  const double seconds = m_stopwatch.seconds();
  m_stopwatch.restart();
  if (seconds <= 0.0) {
    return;  // the clock stood still or was set back: there is nothing to tell, and the last text stays
  }
  m_framesPerSecond = wholePixel(framesPerMeasurement / seconds);
  // Less than one frame a second has no whole rate to divide by: a frame then takes without end.
  const float milliseconds = m_framesPerSecond > 0 ? 1000.0F / static_cast<float>(m_framesPerSecond)
                                                   : std::numeric_limits<float>::infinity();
  std::ostringstream label;
  label << "frame rate:\n"
        << m_framesPerSecond << " frames/sec\n"
        << milliseconds << " msec per frame\n"
        << labelStamp << m_extraText;
  setText(label.str());
}
