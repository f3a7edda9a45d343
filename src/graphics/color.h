// A colour of four 8-bit channels in one 32-bit word.
#pragma once

#include <cstdint>

// Red is the most significant byte, alpha the least. Drawing ignores alpha; colours read back have alpha 255.
class xplColor {
 public:
  constexpr xplColor() = default;
  constexpr xplColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue, std::uint8_t alpha = 255)
      : m_value((std::uint32_t{red} << 24) | (std::uint32_t{green} << 16) | (std::uint32_t{blue} << 8) |
                alpha) {}
  // From the whole word, 0xRRGGBBAA.
  static constexpr xplColor fromValue(std::uint32_t value) {
    xplColor color;
    color.m_value = value;
    return color;
  }

  constexpr std::uint8_t red() const { return static_cast<std::uint8_t>(m_value >> 24); }
  constexpr std::uint8_t green() const { return static_cast<std::uint8_t>((m_value >> 16) & 0xff); }
  constexpr std::uint8_t blue() const { return static_cast<std::uint8_t>((m_value >> 8) & 0xff); }
  constexpr std::uint8_t alpha() const { return static_cast<std::uint8_t>(m_value & 0xff); }
  constexpr std::uint32_t value() const { return m_value; }

  // Red, green and blue times the factor, each clamped to [0, 255] and truncated; alpha stays.
  constexpr xplColor scaledBy(float factor) const {
    return {scaleChannel(red(), factor), scaleChannel(green(), factor), scaleChannel(blue(), factor),
            alpha()};
  }

  friend constexpr bool operator==(xplColor a, xplColor b) { return a.m_value == b.m_value; }

 private:
  static constexpr std::uint8_t scaleChannel(std::uint8_t channel, float factor) {
    const float product = static_cast<float>(channel) * factor;
    if (product >= 255.0F) {
      return 255;
    }
    return product > 0.0F ? static_cast<std::uint8_t>(product) : std::uint8_t{0};
  }

  std::uint32_t m_value = 0;
};
