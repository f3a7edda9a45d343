// What the tests of real sounds share: the bytes that a sound has when it is played.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "harness/privateFolders.h"
#include "services/linux/soundPipe.h"
#include "support/linux/temporaryEnvironment.h"

class Audible : public PrivateFolders {
 protected:
  Audible();
  // A sound that ended may keep its threads for a moment longer; no test leaves any to the next one.
  void TearDown() override { EXPECT_TRUE(threadsComeDownTo(m_threadsBefore)); }

  // The path of a new file in the test's own folder.
  std::string newPath();
  // The samples of a WAVE resource as they reach the sound system, decoded by the test itself: bytes for an
  // 8-bit sound, little-endian words of 16 bits for an ADPCM one.
  static std::vector<std::uint8_t> soundOf(int resource);
  // True where nothing but silence follows in `played` from this byte on.
  static bool isSilentFrom(const std::vector<std::uint8_t>& played, std::size_t begin, std::uint8_t silence);
  // How many threads this process has.
  static std::size_t threadCount();
  // Waits until it has so many; false where it still has others after ten seconds.
  static bool threadsComeDownTo(std::size_t count);

 private:
  std::size_t m_threadsBefore = threadCount();
  TemporaryEnvironment m_environment;
  int m_number = 0;
};
