// A room as eight delays that feed each other (a feedback delay network with Householder's matrix).
#include "sounds/reverb.h"

#include <array>
#include <cstddef>
#include <numeric>
#include <utility>

#include "sounds/exactMath.h"

namespace {

constexpr std::size_t lineCount = 8;
// Milliseconds without common measure, so that the echoes do not fall together.
constexpr std::array<double, lineCount> delays = {13.7, 17.9, 21.1, 25.3, 29.9, 34.3, 38.9, 44.9};

// A delay that loses highs and strength each time round.
class Line {
 public:
  Line(double milliseconds, const Room& room, int rate)
      : m_buffer(static_cast<std::size_t>(milliseconds * room.size * rate / 1000.0) + 1),
        m_gain(amplitudeOf(-0.06 * milliseconds * room.size / room.seconds)),
        m_brightness(room.brightness) {}
  double read() const { return m_buffer[m_at]; }
  void write(double value) {
    m_dull += m_brightness * (value - m_dull);
    m_buffer[m_at] = m_gain * m_dull;
    m_at = (m_at + 1) % m_buffer.size();
  }

 private:
  std::vector<double> m_buffer;
  std::size_t m_at = 0;
  double m_dull = 0.0;
  double m_gain;
  double m_brightness;
};

}  // namespace

void addRoom(Track& track, const Room& room) {
  std::vector<Line> lines;
  lines.reserve(lineCount);
  for (const double milliseconds : delays) {
    lines.emplace_back(milliseconds, room, track.rate);
  }
  Track echo = track;
  process(echo, [&lines](double sample) {
    std::array<double, lineCount> heard{};
    for (std::size_t i = 0; i < lineCount; ++i) {
      heard[i] = lines[i].read();
    }
    const double sum = std::accumulate(heard.begin(), heard.end(), 0.0);
    double out = 0.0;
    for (std::size_t i = 0; i < lineCount; ++i) {
      lines[i].write(sample + heard[i] - sum * 2.0 / lineCount);
      out += i % 2 == 0 ? heard[i] : -heard[i];
    }
    return out / lineCount;
  });
  track.mix(echo, room.level);
}
