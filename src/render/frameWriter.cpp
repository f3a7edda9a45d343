// Writes frames, PNG by stb_image_write.
#include "render/frameWriter.h"

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <system_error>

#include "render/offscreenWindow.h"
#include "render/stbImageWrite.h"
#include "support/log.h"

namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

[[noreturn]] void failOn(const std::string& name) {
  const auto reason = std::generic_category().message(errno);
  throw std::runtime_error("cannot write " + (name == "-" ? "standard output" : "'" + name + "'") + ": " +
                           reason);
}

void writeBytes(const std::string& name, const char* mode, const void* bytes, std::size_t size) {
  if (name == "-") {
    makeStandardOutputBinary();
    if (std::fwrite(bytes, 1, size, stdout) != size || std::fflush(stdout) != 0) {
      failOn(name);
    }
    return;
  }
  const File file(std::fopen(name.c_str(), mode));
  if (!file || std::fwrite(bytes, 1, size, file.get()) != size || std::fflush(file.get()) != 0) {
    failOn(name);
  }
}

}  // namespace

std::uint64_t hashOfFrame(const std::vector<std::uint32_t>& pixels) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const auto pixel : pixels) {
    hash = (hash ^ pixel) * 0x100000001b3U;
  }
  return hash;
}

std::string nameOfFrame(const std::string& pattern, int number) {
  const auto percent = pattern.find('%');
  if (percent == std::string::npos) {
    return pattern;
  }
  const auto letter = pattern.find('d', percent);
  const std::size_t width = letter == percent + 1 ? 0 : static_cast<std::size_t>(pattern[percent + 2] - '0');
  std::string digits = std::to_string(number);
  if (digits.size() < width) {
    digits.insert(0, width - digits.size(), '0');
  }
  return pattern.substr(0, percent) + digits + pattern.substr(letter + 1);
}

void FrameWriter::write(int number, const std::vector<std::uint32_t>& pixels) {
  if (m_options.raw) {
    writeRaw(pixels);
  } else if (m_options.frames) {
    writePng(nameOfFrame(m_options.output, number), pixels);
  } else {
    writePng(m_options.output, pixels);
  }
}

void FrameWriter::writePng(const std::string& name, const std::vector<std::uint32_t>& pixels) const {
  std::vector<std::uint8_t> rgb;
  rgb.reserve(pixels.size() * 3);
  for (const auto pixel : pixels) {
    rgb.push_back(static_cast<std::uint8_t>((pixel >> 16) & 0xff));
    rgb.push_back(static_cast<std::uint8_t>((pixel >> 8) & 0xff));
    rgb.push_back(static_cast<std::uint8_t>(pixel & 0xff));
  }
  const auto png = encodePng(m_options.width, m_options.height, rgb);
  writeBytes(name, "wb", png.data(), png.size());
}

void FrameWriter::writeRaw(const std::vector<std::uint32_t>& pixels) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(pixels.size() * 4);
  for (const auto pixel : pixels) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
      bytes.push_back(static_cast<std::uint8_t>((pixel >> shift) & 0xff));
    }
  }
  writeBytes(m_options.output, m_rawStarted ? "ab" : "wb", bytes.data(), bytes.size());
  m_rawStarted = true;
}
