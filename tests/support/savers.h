// Programs and threads that save at once: how each saves, and what must stand in the file in the end.
#pragma once

#include <chrono>
#include <string>
#include <thread>

#include "support/clock.h"
#include "support/settings.h"
#include "support/settingsFixture.h"

inline constexpr int keysOfASaver = 200;

// A clock whose sleeps take the time that they say: savers wait for each other.
class RealTime : public xplClockSource {
 public:
  xplInstant now() override { return {1463865300, 0}; }
  using xplClockSource::sleep;
  void sleep(unsigned milliseconds) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  }
};

// Saves each of its keys by itself.
inline void saveAllKeysOf(const std::string& saver) {
  xplSettings store(xplSettings::scopeUser);
  for (int i = 0; i < keysOfASaver; ++i) {
    store.set(saver + std::to_string(i), i);
  }
}

class Savers : public Settings {
 protected:
  // That the file holds all keys of two savers.
  static void expectAllKeysOf(const std::string& one, const std::string& other) {
    const xplSettings file(xplSettings::scopeUser);
    int lost = 0;
    for (const std::string& saver : {one, other}) {
      for (int i = 0; i < keysOfASaver; ++i) {
        lost += file.getInt(saver + std::to_string(i), -1) == i ? 0 : 1;
      }
    }
    EXPECT_EQ(lost, 0) << "keys of " << 2 * keysOfASaver;
    EXPECT_TRUE(logError().isEmpty());
  }
  // That a saver found the disk so slow that it saved without the lock: then keys may be lost, as is said
  // there.
  bool someSaverWasLate() const { return countEntriesWith("is not waited for") > 0; }

 private:
  RealTime m_realTime;
  xplClock::Override m_override{m_realTime};
};
