// A pipe in the place of the sound card: what is played waits in it until the test has read it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// SDL's disk driver opens the pipe, named by its environment variable, once for each sound. Not before the
// test reads on does the sound go on, so that a test knows at which byte it is. Has SDL play on into the pipe
// that was made last.
class SoundPipe {
 public:
  // path: of a file that is not there yet.
  explicit SoundPipe(const std::string& path);
  ~SoundPipe();
  SoundPipe(const SoundPipe&) = delete;
  SoundPipe& operator=(const SoundPipe&) = delete;

  // Lets the sound begin: waits until the player has opened its end.
  void open();
  // The next bytes that are played; fewer where the sound ends before.
  std::vector<std::uint8_t> read(std::size_t count);
  // All that is played until the sound ends.
  std::vector<std::uint8_t> readToEnd();
  // True where nothing more is played.
  bool isAtEnd() { return read(1).empty(); }

 private:
  std::string m_path;
  int m_descriptor = -1;
};
