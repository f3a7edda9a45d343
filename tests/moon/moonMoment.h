// What the moon and its label say at a moment in a zone: rows that reference/moments.py computed from the
// same tables, with its own calendar and zones.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "moon/moonInfo.h"
#include "moon/moonInfoSprite.h"

struct MoonMoment {
  const char* zone;
  std::int64_t time;
  std::int64_t previousFullMoon;
  std::int64_t nextFullMoon;
  std::int64_t previousNewMoon;
  std::int64_t nextNewMoon;
  int phase;
  const char* percentText;
  const char* label;     // once its first lines are typed
  const char* nextDate;  // the second date line's; empty where there is an alert
};

inline void PrintTo(const MoonMoment& moment, std::ostream* out) {
  *out << moment.time << " in " << moment.zone;
}

// The label's text after this many frames.
inline std::string labelAfter(cMoonInfoSprite& label, int frames) {
  for (int i = 0; i < frames; ++i) {
    label.update(0.04F);
  }
  return label.text();
}

// The clock of the test stands at the moment.
inline void expectMoment(const MoonMoment& moment) {
  const cMoonInfo info(moment.time);
  EXPECT_EQ(moment.previousFullMoon, info.previousFullMoon());
  EXPECT_EQ(moment.nextFullMoon, info.nextFullMoon());
  EXPECT_EQ(moment.previousNewMoon, info.previousNewMoon());
  EXPECT_EQ(moment.nextNewMoon, info.nextNewMoon());
  EXPECT_EQ(moment.phase, info.phase());
  EXPECT_EQ(moment.percentText, info.percentText());

  cMoonInfoSprite label;
  label.fillFromMoonInfo(info);
  const std::string first = labelAfter(label, 60);
  EXPECT_EQ(moment.label, first);
  // The date lines have changed, the phase lines will.
  const std::string second = labelAfter(label, 101);
  const std::string nextDate = moment.nextDate;
  if (nextDate.empty()) {
    EXPECT_EQ(std::string::npos, second.find("moon on")) << second;
  } else {
    EXPECT_NE(std::string::npos, second.find("\nFull moon on:" + nextDate)) << second;
  }
  EXPECT_NE(std::string::npos, second.find(std::string("Phase (percent):") + moment.percentText)) << second;
}
