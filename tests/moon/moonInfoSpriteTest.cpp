// What the moon's label says under each setting, and how it changes from frame to frame.
#include <cmath>

#include "moon/moonFixture.h"
#include "moon/moonInfoSprite.h"
#include "moon/moonMoment.h"
#include "support/settings.h"
#include "windowharness/testWindow.h"

namespace {

constexpr std::int64_t fullMoonOfSeptember2016 = 1474052700;  // the 16th, 19:05 UTC
constexpr std::int64_t newMoonOfJune2016 = 1465095600;        // the 5th, 03:00 UTC
constexpr std::int64_t firstQuarter = 1486144800;             // 3 February 2017, 18:00 UTC: 271 degrees

class MoonInfoSprite : public MoonTest {
 protected:
  void fillAt(std::int64_t moment) {
    clock.set({moment, 0});
    label.fillFromMoonInfo(cMoonInfo(moment));
  }
  void switchOff(const char* setting) { xplUserSettings().set(setting, false); }
  std::string typed() { return labelAfter(label, 60); }

  cMoonInfoSprite label;
};

TEST_F(MoonInfoSprite, HasItsNameAndStyle) {
  EXPECT_STREQ("moonInfoLabel", label.name());
  EXPECT_FALSE(label.style.useWindowTextColor);
  EXPECT_EQ(xplColor(175, 238, 187, 255), label.style.textColor);
  EXPECT_TRUE(label.style.useWindowFont);
  EXPECT_FALSE(label.style.useWindowFontSize);
  EXPECT_EQ(11, label.style.fontSize);
  EXPECT_FALSE(label.style.alignDefault);
  EXPECT_EQ(xplTextAttributes::alignmentCentered, label.style.alignment);
  EXPECT_EQ("", label.text());
}

TEST_F(MoonInfoSprite, NamesThePhaseAndTypesTheOtherLines) {
  fillAt(firstQuarter);
  EXPECT_EQ("First Quarter\nP\nP", labelAfter(label, 1));
  EXPECT_EQ("First Quarter\nPh\nPa", labelAfter(label, 1));
  EXPECT_EQ("First Quarter\nPhase (degrees):271\nPast full moon:January 12, 11:34", typed());
}

TEST_F(MoonInfoSprite, LinesTakeTurnsEachAtItsOwnInterval) {
  fillAt(firstQuarter);
  const std::string first = labelAfter(label, 101);
  EXPECT_EQ("First Quarter\nPhase (degrees):271\nPast full moon:January 12, 11:34", first);
  EXPECT_EQ("First Quarter\nPhase (degrees):271\nFast full moon:January 12, 11:34", labelAfter(label, 1));
  EXPECT_EQ("First Quarter\nPhase (degrees):271\nFull full moon:January 12, 11:34", labelAfter(label, 3));
  // The 113th frame has typed twelve characters of the new date; the phase line follows in the 114th.
  EXPECT_EQ("First Quarter\nPhase (degrees):271\nFull moon onon:January 12, 11:34", labelAfter(label, 8));
  EXPECT_EQ("First Quarter\nPhase (percent):50%\nFull moon on:February 11, 00:33", labelAfter(label, 40));
}

TEST_F(MoonInfoSprite, FullMoonTonightBearsTheMonthsName) {
  fillAt(fullMoonOfSeptember2016);
  EXPECT_EQ("Full moon tonight\n\"Harvest Moon\"\n\nPhase (degrees):0\n", typed());
  EXPECT_EQ(1, countEntries("textPart_FullMoonAlert: Full moon tonight\n\"Harvest Moon\"", "Info"));
}

TEST_F(MoonInfoSprite, FullMoonTomorrowBearsTheMonthsNameToo) {
  fillAt(fullMoonOfSeptember2016 - 24 * 3600);
  EXPECT_EQ("Full moon tomorrow\n\"Harvest Moon\"\n\nPhase (degrees):346\n", typed());
}

TEST_F(MoonInfoSprite, NewMoonHasNoName) {
  fillAt(newMoonOfJune2016);
  EXPECT_EQ("New moon tonight\n\nPhase (degrees):173\n", typed());
  cMoonInfoSprite tomorrow;
  clock.set({newMoonOfJune2016 - 24 * 3600, 0});
  tomorrow.fillFromMoonInfo(cMoonInfo(newMoonOfJune2016 - 24 * 3600));
  EXPECT_EQ("New moon tomorrow\n\nPhase (degrees):161\n", labelAfter(tomorrow, 60));
}

TEST_F(MoonInfoSprite, WithAnAlertSettingsOfNameAndDatesChangeNothing) {
  switchOff("showMoonPhaseName");
  switchOff("showNotableDates");
  fillAt(fullMoonOfSeptember2016);
  EXPECT_EQ("Full moon tonight\n\"Harvest Moon\"\n\nPhase (degrees):0\n", typed());
}

TEST_F(MoonInfoSprite, KeptLineBreaksAfterAnAlertAlone) {
  switchOff("showMoonPhasePercentAndDegrees");
  fillAt(fullMoonOfSeptember2016);
  EXPECT_EQ("Full moon tonight\n\"Harvest Moon\"\n\n\n", typed());
}

TEST_F(MoonInfoSprite, KeptLineBreaksAfterAPhaseNameAlone) {
  switchOff("showMoonPhasePercentAndDegrees");
  switchOff("showNotableDates");
  fillAt(firstQuarter);
  EXPECT_EQ("First Quarter\n\n", typed());
}

TEST_F(MoonInfoSprite, EachPartMayBeLeftOut) {
  switchOff("showMoonPhaseName");
  fillAt(firstQuarter);
  EXPECT_EQ("Phase (degrees):271\nPast full moon:January 12, 11:34", typed());
}

TEST_F(MoonInfoSprite, DatesAloneStandOnTheFirstLine) {
  switchOff("showMoonPhaseName");
  switchOff("showMoonPhasePercentAndDegrees");
  fillAt(firstQuarter);
  EXPECT_EQ("Past full moon:January 12, 11:34", typed());
}

TEST_F(MoonInfoSprite, WithEverythingOffAndNoAlertTheTextStaysEmpty) {
  switchOff("showMoonPhaseName");
  switchOff("showMoonPhasePercentAndDegrees");
  switchOff("showNotableDates");
  fillAt(firstQuarter);
  EXPECT_EQ("", typed());
}

TEST_F(MoonInfoSprite, OfAFullMoonThatIsPastTakesThatMonthsName) {
  // Five in the morning of the 17th is still its night.
  fillAt(fullMoonOfSeptember2016 + 10 * 3600 - 300);
  EXPECT_EQ("Full moon tonight\n\"Harvest Moon\"\n\nPhase (degrees):5\n", typed());
}

TEST_F(MoonInfoSprite, KeptDateOf1970WhereThereIsNoNextFullMoon) {
  fillAt(1795245300);  // November 2026
  EXPECT_EQ("Waxing Gibbous Moon\nPhase (degrees):320\nPast full moon:December 03, 15:47", typed());
  EXPECT_NE(std::string::npos, labelAfter(label, 90).find("\nFull moon on:January 01, 00:00"));
}

TEST_F(MoonInfoSprite, NeverChangesItsAlertOrNameLater) {
  fillAt(fullMoonOfSeptember2016);
  typed();
  clock.set({fullMoonOfSeptember2016 + 10 * 24 * 3600, 0});
  EXPECT_EQ(0U, labelAfter(label, 500).find("Full moon tonight\n\"Harvest Moon\"\n\nPhase ("));
}

TEST_F(MoonInfoSprite, GoesOnTypingAndTakingTurnsWhileTheClockJumpsBack) {
  fillAt(firstQuarter);
  labelAfter(label, 20);
  clock.set({firstQuarter - 40 * 24 * 3600, 0});
  EXPECT_EQ("First Quarter\nPhase (degrees):271\nPast full moon:January 12, 11:34", typed());
  clock.set({-1, 0});
  EXPECT_EQ("First Quarter\nPhase (percent):50%\nFull moon on:February 11, 00:33", typed());
}

TEST_F(MoonInfoSprite, BeforeItIsFilledItsTextIsEmpty) {
  EXPECT_EQ("", labelAfter(label, 3));
}

TEST_F(MoonInfoSprite, MovesByItsSpeedUnlessTheStepIsNoNumber) {
  label.x = 10.0F;
  label.y = 20.0F;
  label.speedX = 50.0F;
  label.speedY = -25.0F;
  label.update(0.04F);
  EXPECT_FLOAT_EQ(12.0F, label.x);
  EXPECT_FLOAT_EQ(19.0F, label.y);
  label.update(0.0F);
  label.update(std::nanf(""));
  EXPECT_FLOAT_EQ(12.0F, label.x);
  EXPECT_FLOAT_EQ(19.0F, label.y);
}

TEST_F(MoonInfoSprite, TakesStepsOfAnyLength) {
  fillAt(firstQuarter);
  for (const float step : {1.0e30F, -1.0e30F, std::nanf(""), 0.0F, INFINITY}) {
    label.update(step);
  }
  EXPECT_EQ(0U, label.text().find("First Quarter\n"));
}

TEST_F(MoonInfoSprite, WidthIsToBeMeasuredAgainAfterEachCharacter) {
  TestWindow native(200, 100);
  xplWindow window(native.handle());
  label.setRenderWindow(&window);
  fillAt(firstQuarter);
  label.update(0.04F);
  label.calcSize();
  EXPECT_TRUE(label.sizeIsValid());
  label.update(0.04F);
  EXPECT_FALSE(label.sizeIsValid());
}

}  // namespace
