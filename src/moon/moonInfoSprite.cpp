// Writes the moon's label.
#include "moon/moonInfoSprite.h"

#include "moon/moonNames.h"
#include "moon/moonTimeText.h"
#include "sprites/wholePixel.h"
#include "support/clock.h"
#include "support/log.h"
#include "support/settingsGroups.h"

namespace {

// Empty where the platform cannot tell the local time. 0, which stands for no event, is written like any
// other moment.
std::string dateOf(std::int64_t moment) {
  const auto local = xplClock::localTime(moment);
  return timeStruct2String(local ? &*local : nullptr);
}

const char* nameOfFullMoonAt(std::int64_t moment) {
  const auto local = xplClock::localTime(moment);
  return fullMoonName(local ? local->tm_mon + 1 : 0);
}

void startNewLineAfterText(std::string& text) {
  if (!text.empty()) {
    text += '\n';
  }
}

}  // namespace

cMoonInfoSprite::cMoonInfoSprite() : TorvSpriteText("moonInfoLabel") {
  style.useWindowTextColor = false;
  style.textColor = xplColor(175, 238, 187);
  style.useWindowFontSize = false;
  style.fontSize = 11;
  style.alignDefault = false;
  style.alignment = xplTextAttributes::alignmentCentered;
}

void cMoonInfoSprite::chooseAlertOrPhaseName(const cMoonInfo& moonInfo, bool showPhaseName) {
  bool isFullMoon = false;
  if (moonInfo.isFullMoonTonight()) {
    textPart_FullMoonAlert = "Full moon tonight";
    isFullMoon = true;
  } else if (moonInfo.isFullMoonTomorrow()) {
    textPart_FullMoonAlert = "Full moon tomorrow";
    isFullMoon = true;
  } else if (moonInfo.isNewMoonTonight()) {
    textPart_FullMoonAlert = "New moon tonight";
  } else if (moonInfo.isNewMoonTomorrow()) {
    textPart_FullMoonAlert = "New moon tomorrow";
  } else if (showPhaseName) {
    m_phaseNamePart = phaseName(moonInfo.phase());
  }
  if (isFullMoon) {
    textPart_FullMoonAlert += '\n';
    textPart_FullMoonAlert += nameOfFullMoonAt(moonInfo.nearestFullMoon());
    logInfo().addf("textPart_FullMoonAlert: %s", textPart_FullMoonAlert.c_str());
  }
}

void cMoonInfoSprite::fillFromMoonInfo(const cMoonInfo& moonInfo) {
  const cMoonSettings settings;
  chooseAlertOrPhaseName(moonInfo, settings.showMoonPhaseName.read());
  if (settings.showNotableDates.read() && textPart_FullMoonAlert.empty()) {
    m_datesLines.addLine("Past full moon:" + dateOf(moonInfo.previousFullMoon()));
    m_datesLines.addLine("Full moon on:" + dateOf(moonInfo.nextFullMoon()));
  }
  if (settings.showMoonPhasePercentAndDegrees.read()) {
    m_phaseLines.addLine("Phase (degrees):" + std::to_string(moonInfo.phase()));
    m_phaseLines.addLine("Phase (percent):" + moonInfo.percentText());
  }
  m_newText.reserve(textPart_FullMoonAlert.size() + m_phaseNamePart.size() + m_phaseLines.longest() +
                    m_datesLines.longest() + 3);
}

void cMoonInfoSprite::appendLines(RotatingLines& lines) {
  if (lines.isEmpty()) {
    return;
  }
  if (lines.isTyping()) {
    lines.typeOneCharacter();
  }
  m_newText += lines.shown();
}

// Deliberate: a line break follows whatever stands above, also where no line comes after it, so that an alert
// alone ends with empty lines and keeps its place above where the lines would be. Do not trim the text.
void cMoonInfoSprite::rebuildText() {
  m_textChanged = false;
  m_newText = textPart_FullMoonAlert;
  startNewLineAfterText(m_newText);
  m_newText += m_phaseNamePart;
  startNewLineAfterText(m_newText);
  appendLines(m_phaseLines);
  startNewLineAfterText(m_newText);
  appendLines(m_datesLines);
  setText(m_newText);
}

void cMoonInfoSprite::update(float elapsedSec) {
  if (m_textChanged || m_datesLines.isTyping() || m_phaseLines.isTyping()) {
    rebuildText();
  }
  const int milliseconds = wholePixel(static_cast<double>(elapsedSec * 1000.0F));
  m_datesLines.advance(milliseconds);
  m_phaseLines.advance(milliseconds);
  if (elapsedSec == elapsedSec) {  // a step that is not a number moves nothing
    TorvSpriteText::update(elapsedSec);
  }
}
