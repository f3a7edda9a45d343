// Implements the pipe in the place of the sound card.
#include "services/linux/soundPipe.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

SoundPipe::SoundPipe(const std::string& path) : m_path(path) {
  if (mkfifo(path.c_str(), 0600) != 0) {
    throw std::system_error(errno, std::generic_category(), path);
  }
  setenv("SDL_AUDIODRIVER", "disk", 1);
  setenv("SDL_DISKAUDIODELAY", "0", 1);
  setenv("SDL_DISKAUDIOFILE", path.c_str(), 1);
}

SoundPipe::~SoundPipe() {
  if (m_descriptor >= 0) {
    close(m_descriptor);
  }
  unlink(m_path.c_str());
}

void SoundPipe::open() {
  m_descriptor = ::open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
  if (m_descriptor < 0) {
    throw std::system_error(errno, std::generic_category(), m_path);
  }
}

std::vector<std::uint8_t> SoundPipe::read(std::size_t count) {
  std::vector<std::uint8_t> bytes;
  std::uint8_t buffer[4096];
  while (bytes.size() < count) {
    const ssize_t got = ::read(m_descriptor, buffer, std::min(sizeof buffer, count - bytes.size()));
    if (got < 0 && errno != EINTR) {
      throw std::system_error(errno, std::generic_category(), m_path);
    }
    if (got == 0) {
      break;
    }
    bytes.insert(bytes.end(), buffer, buffer + std::max<ssize_t>(got, 0));
  }
  return bytes;
}

std::vector<std::uint8_t> SoundPipe::readToEnd() {
  return read(std::numeric_limits<std::size_t>::max());
}
