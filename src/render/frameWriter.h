// Writes frames as PNG files or as raw bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "render/renderOptions.h"

// A 64-bit hash of a frame's pixels (0xffRRGGBB): FNV-1a over whole words.
std::uint64_t hashOfFrame(const std::vector<std::uint32_t>& pixels);

// The output name with the frame's number in its place.
std::string nameOfFrame(const std::string& pattern, int number);

class FrameWriter {
 public:
  // Opens nothing yet. The options are borrowed.
  explicit FrameWriter(const RenderOptions& options) : m_options(options) {}
  FrameWriter(const RenderOptions&&) = delete;

  // Writes frame `number` (from 0), options.width x options.height pixels of 0xffRRGGBB. Throws
  // std::runtime_error with the file's name and the reason where it cannot.
  void write(int number, const std::vector<std::uint32_t>& pixels);

 private:
  void writePng(const std::string& name, const std::vector<std::uint32_t>& pixels) const;
  void writeRaw(const std::vector<std::uint32_t>& pixels);

  const RenderOptions& m_options;
  bool m_rawStarted = false;
};
