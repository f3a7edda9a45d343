// An old television that is switched off: dark bands close in, a white line shrinks to a point, a white dot
// shrinks to nothing.
#pragma once

#include "graphics/rect.h"
#include "world/windowTransitionEffect.h"

// How far the line and the dot have shrunk.
//
// Deliberate: the process has one, which nothing resets, since a run begins once. A second effect in the same
// process finds line and dot used up: it closes the bands and is over. Do not give each effect its own.
struct sOldTvProgress {
  int lineStart = 0;   // pixels from the left
  int lineLength = 0;  // pixels; set with lineStep when the first line is drawn, below 0 when it is used up
  int lineStep = 0;    // pixels a frame, at each end of the line
  int dotRadius = 25;  // pixels
  bool lineIsMeasured = false;

  static sOldTvProgress& ofProcess();
};

// Draws straight to the window while it plays. Without a window it has finished at its first frame.
class cWindowTransitionEffect_OldTV : public cWindowTransitionEffect_base {
 public:
  // Borrows the progress, which must outlive the effect; tests give their own.
  explicit cWindowTransitionEffect_OldTV(sOldTvProgress& progress = sOldTvProgress::ofProcess())
      : m_progress(progress) {}

  // Takes the window's size, and sends all drawing straight to the window until the effect has finished.
  void initWithWindow(xplWindow* window, std::int32_t monitorId) override;
  void draw() override;

 private:
  enum class Phase { closingBands = 1, shrinkingLine = 2, shrinkingDot = 3 };

  void drawBands();
  void drawLine();
  void drawDot();
  void finish();

  sOldTvProgress& m_progress;
  Phase m_phase = Phase::closingBands;
  int m_centerX = 0;   // pixels
  int m_centerY = 0;   // pixels
  int m_bandStep = 0;  // pixels a frame
  xplRect<int> m_band;
};
