// The sounds that the program carries: their formats, lengths and levels, and that those which repeat do it
// without a click.
#include <algorithm>
#include <cmath>
#include <numeric>
#include <ostream>
#include <span>
#include <string>

#include <gmock/gmock.h>

#include "resources/waveFile.h"
#include "resources/waveResource.h"

namespace {

constexpr int pcm = 1;
constexpr int adpcm = 2;

struct Expected {
  const char* name;
  int id;
  int tag;
  int rate;        // samples a second
  double seconds;  // about
  bool loops;
};

std::ostream& operator<<(std::ostream& out, const Expected& expected) {
  return out << expected.name;
}

class Waves : public testing::TestWithParam<Expected> {
 protected:
  void SetUp() override { ASSERT_TRUE(m_wave.wellFormed); }

  const WaveFile m_wave = readWaveFile(waveResource(GetParam().id));
  const std::vector<double> m_samples = m_wave.wellFormed ? samplesOf(m_wave) : std::vector<double>();
};

double decibels(double amplitude) {
  return 20.0 * std::log10(amplitude);
}

double peakOf(const std::vector<double>& samples) {
  return std::abs(*std::max_element(samples.begin(), samples.end(),
                                    [](double a, double b) { return std::abs(a) < std::abs(b); }));
}

double meanOf(const std::vector<double>& samples) {
  return std::accumulate(samples.begin(), samples.end(), 0.0) / static_cast<double>(samples.size());
}

// The root of the mean square.
double strengthOf(std::span<const double> samples) {
  const double squares = std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0);
  return std::sqrt(squares / static_cast<double>(samples.size()));
}

// How far a sample lies from the straight line through the two before it: large where a sound is torn.
double bendOf(double first, double second, double third) {
  return std::abs(third - 2.0 * second + first);
}

TEST_P(Waves, HasItsFormat) {
  EXPECT_EQ(m_wave.tag, GetParam().tag);
  EXPECT_EQ(m_wave.channels, 1);
  EXPECT_EQ(m_wave.rate, GetParam().rate);
  EXPECT_EQ(m_wave.bits, GetParam().tag == pcm ? 8 : 4);
}

TEST_P(Waves, SaysHowItsBytesAreCounted) {
  if (m_wave.tag == pcm) {
    EXPECT_EQ(m_wave.format.size(), 16U);
    EXPECT_EQ(m_wave.blockBytes, 1);
    EXPECT_EQ(m_wave.bytesPerSecond, m_wave.rate);
    return;
  }
  EXPECT_EQ(m_wave.blockSamples, (m_wave.blockBytes - 7) * 2 + 2);
  EXPECT_EQ(m_wave.bytesPerSecond, m_wave.rate * m_wave.blockBytes / m_wave.blockSamples);
  EXPECT_EQ(m_wave.factSamples, static_cast<int>(m_samples.size()));
  EXPECT_EQ(m_wave.data.size() % static_cast<std::size_t>(m_wave.blockBytes), 0U)
      << "the last block is short";
}

TEST_P(Waves, LastsAsLongAsItShould) {
  const double seconds = static_cast<double>(m_samples.size()) / m_wave.rate;
  EXPECT_NEAR(seconds, GetParam().seconds, 0.05);
}

TEST_P(Waves, IsNeitherClippedNorTooQuiet) {
  const double peak = decibels(peakOf(m_samples));
  EXPECT_LE(peak, -1.0);
  EXPECT_GE(peak, -12.0);
}

TEST_P(Waves, RestsAtTheMiddle) {
  EXPECT_LT(std::abs(meanOf(m_samples)), 0.001);
}

TEST_P(Waves, BeginsAndEndsSoftly) {
  const double third = peakOf(m_samples) / 3.0;
  EXPECT_LT(std::abs(m_samples.front()), third);
  EXPECT_LT(std::abs(m_samples.back()), third);
  if (!GetParam().loops) {
    EXPECT_EQ(m_samples.front(), 0.0);
    EXPECT_EQ(m_samples.back(), 0.0);
  }
}

// Heard once, a sound that is cut while it goes on sounds broken; heard in a loop, it takes a breath.
TEST_P(Waves, ComesToRestAtItsEnd) {
  const std::size_t end = static_cast<std::size_t>(m_wave.rate / 50);
  EXPECT_LT(strengthOf(std::span(m_samples).last(end)), 0.15 * strengthOf(m_samples));
}

TEST_P(Waves, RepeatsWithoutAClick) {
  const std::size_t count = m_samples.size();
  double usual = 0.0;
  for (std::size_t i = 2; i < count; ++i) {
    const double bend = bendOf(m_samples[i - 2], m_samples[i - 1], m_samples[i]);
    usual += bend * bend;
  }
  usual = std::sqrt(usual / static_cast<double>(count - 2));
  EXPECT_LT(bendOf(m_samples[count - 2], m_samples[count - 1], m_samples[0]), 2.0 * usual);
  EXPECT_LT(bendOf(m_samples[count - 1], m_samples[0], m_samples[1]), 2.0 * usual);
}

TEST_P(Waves, IsWhatThePlatformsPlayerHears) {
  const std::vector<double> heard = decodedByThePlatform(waveResource(GetParam().id));
  ASSERT_EQ(heard.size(), m_samples.size());
  double farthest = 0.0;
  for (std::size_t i = 0; i < heard.size(); ++i) {
    farthest = std::max(farthest, std::abs(heard[i] - m_samples[i]));
  }
  EXPECT_LT(farthest, 0.004);  // decoders may round a prediction each in its own way
}

INSTANTIATE_TEST_SUITE_P(All, Waves,
                         testing::Values(Expected{"SleepingWithTheOneILove", 116, adpcm, 22050, 6.9, true},
                                         Expected{"SleepReminder", 115, adpcm, 11025, 9.4, true},
                                         Expected{"Lullaby", 4, adpcm, 11025, 9.2, true},
                                         Expected{"OceanWaves", 117, adpcm, 11025, 6.1, true},
                                         Expected{"Birds", 109, pcm, 8000, 17.8, true},
                                         Expected{"FeelingBlue", 112, pcm, 8000, 19.6, true},
                                         Expected{"Cuckoo", 111, pcm, 8000, 0.4, false},
                                         Expected{"Rooster", 114, pcm, 11025, 2.4, false}),
                         [](const auto& given) { return std::string(given.param.name); });

}  // namespace
