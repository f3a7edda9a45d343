// What the tests of real sounds share: the bytes that a sound has when it is played.
#pragma once

#include <cstdint>
#include <vector>

#include "harness/privateFolders.h"
#include "services/linux/soundPipe.h"
#include "support/linux/temporaryEnvironment.h"

class Audible : public PrivateFolders {
 protected:
  Audible();

  // The path of a new file in the test's own folder.
  std::string newPath();
  // The samples of a WAVE resource as they reach the sound system, decoded by the test itself: bytes for an
  // 8-bit sound, little-endian words of 16 bits for an ADPCM one.
  static std::vector<std::uint8_t> soundOf(int resource);
  // True where nothing but silence follows in `played` from this byte on.
  static bool isSilentFrom(const std::vector<std::uint8_t>& played, std::size_t begin, std::uint8_t silence);
  // How many threads this process has.
  static std::size_t threadCount();

 private:
  TemporaryEnvironment m_environment;
  int m_number = 0;
};
