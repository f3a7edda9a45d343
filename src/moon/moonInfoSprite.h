// The small text beside the moon: tonight's moon or the phase's name, the phase in numbers, and dates.
#pragma once

#include <cstdint>
#include <string>

#include "moon/moonInfo.h"
#include "moon/rotatingLines.h"
#include "sprites/spriteText.h"

// Whoever places it calls calcSize() when sizeIsValid() is false: the text changes while it is typed.
class cMoonInfoSprite : public TorvSpriteText {
 public:
  cMoonInfoSprite();

  // Takes the texts for this moment, as the user's settings ask; the first update shows them. Called once.
  void fillFromMoonInfo(const cMoonInfo& moonInfo);
  // Types, lets the lines take turns, and moves; seconds. Takes no memory unless the text changes.
  void update(float elapsedSec) override;

 private:
  void chooseAlertOrPhaseName(const cMoonInfo& moonInfo, bool showPhaseName);
  void rebuildText();
  void appendLines(RotatingLines& lines);

  RotatingLines m_datesLines{4000};
  RotatingLines m_phaseLines{4500};
  std::string textPart_FullMoonAlert;  // may hold the full moon's name on a second line
  std::string m_phaseNamePart;         // empty where there is an alert
  bool m_textChanged = true;           // forces one rebuild
  std::string m_newText;               // kept for its memory
};
