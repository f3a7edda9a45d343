// Tests that texts of every face and size have the same pixels and sizes on both platforms.
#include <cstdint>
#include <ostream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "graphics/textPicture.h"

namespace {

struct Sample {
  const char* face;
  int points;
  std::uint64_t leftHash;
  std::uint64_t centeredHash;
  std::uint64_t rightHash;
  int width;
  int height;
};

void PrintTo(const Sample& sample, std::ostream* stream) {
  *stream << sample.face << ' ' << sample.points;
}

class TextSamples : public testing::TestWithParam<Sample> {};

TEST_P(TextSamples, HavePixelsThatAreTheSameOnEveryPlatform) {
  const Sample& sample = GetParam();
  EXPECT_EQ(hashOf(4, sampleText, plain(sample.face, sample.points, left)), sample.leftHash);
  EXPECT_EQ(hashOf(260, sampleText, plain(sample.face, sample.points, centered)), sample.centeredHash);
  EXPECT_EQ(hashOf(516, sampleText, plain(sample.face, sample.points, right)), sample.rightHash);
}

TEST_P(TextSamples, HaveSizesThatAreTheSameOnEveryPlatform) {
  const Sample& sample = GetParam();
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf(sampleText, plain(sample.face, sample.points)),
            (std::pair{sample.width, sample.height}));
}

INSTANTIATE_TEST_SUITE_P(
    EveryFaceAndSize, TextSamples,
    testing::Values(
        Sample{"Courier New", 8, 0x05e9d7ce4f890725U, 0x7517232a7d3afd25U, 0x390c94870f871125U, 91, 24},
        Sample{"Courier New", 10, 0x48b9e9b6c4d76e25U, 0xec6656855d1c6e25U, 0xd425a1de0f829225U, 104, 30},
        Sample{"Courier New", 12, 0xcf3422632c106125U, 0xe01413a073e74925U, 0x56e940e6303df325U, 130, 36},
        Sample{"Courier New", 16, 0xb1b5f885db250a25U, 0xb7cc4ea71ae08425U, 0xa115d18fe2a70e25U, 169, 46},
        Sample{"Courier New", 18, 0x348240bc1fb37425U, 0x2dcf5c19683a5225U, 0xdf80666a51881a25U, 182, 54},
        Sample{"Courier New", 48, 0xbf78d4649b0bde25U, 0x320f28ce6608d025U, 0x06c1a822aacb2625U, 494, 144},
        Sample{"Arial", 8, 0xce0be77ae8734925U, 0xbee393a142420125U, 0x208f42a2219deb25U, 71, 24},
        Sample{"Arial", 10, 0xe9b2675178ba9925U, 0x36b581e2a8881525U, 0x8f8ca219f35b0925U, 85, 30},
        Sample{"Arial", 12, 0x5c36ba043ef65125U, 0x8efc0797dd343d25U, 0x2c3b633f9ff05125U, 104, 34},
        Sample{"Arial", 16, 0x275c910c961c3025U, 0xc6e99005cbdbb625U, 0xbe43d6a8be2ec025U, 139, 46},
        Sample{"Arial", 18, 0xbe83d6f31952f425U, 0x0c9d662ac6b14225U, 0xbba0e3304fa0ca25U, 155, 54},
        Sample{"Arial", 48, 0x64a8c803cc703325U, 0x17aa02d1e461ed25U, 0x4e900d9fc517bb25U, 419, 144}));

struct SmoothSample {
  const char* face;
  int points;
  std::uint64_t hash;
};

void PrintTo(const SmoothSample& sample, std::ostream* stream) {
  *stream << sample.face << ' ' << sample.points;
}

class SmoothTextSamples : public testing::TestWithParam<SmoothSample> {};

TEST_P(SmoothTextSamples, HavePixelsThatAreTheSameOnEveryPlatform) {
  xplTextDrawingInfo info = plain(GetParam().face, GetParam().points);
  info.nonAntialiased = 0;
  info.color = xplColor(235, 225, 200);
  EXPECT_EQ(hashOf(4, sampleText, info), GetParam().hash);
}

INSTANTIATE_TEST_SUITE_P(LargeSizes, SmoothTextSamples,
                         testing::Values(SmoothSample{"Courier New", 18, 0xba0ff0a100b2c125U},
                                         SmoothSample{"Courier New", 48, 0xee328cd990504c25U},
                                         SmoothSample{"Arial", 18, 0x94166e1395cba425U},
                                         SmoothSample{"Arial", 48, 0x979b6e9c5dbed125U}));

}  // namespace
