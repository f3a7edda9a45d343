// Tests that texts have the same pixels and sizes on both platforms.
#include <cstdint>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"

namespace {

constexpr xplColor black(0, 0, 0);
constexpr xplColor white(255, 255, 255);
constexpr int left = xplTextDrawingInfo::alignLeft;
constexpr int centered = xplTextDrawingInfo::alignCentered;
constexpr int right = xplTextDrawingInfo::alignRight;

// A picture that texts are drawn on, and by whose target they are measured.
class TextPicture : public xplImage {
 public:
  TextPicture(int width, int height) { initWithSizeAndColor(width, height, black); }

  std::pair<int, int> sizeOf(const std::string& text, const xplTextDrawingInfo& info) {
    int width = -1;
    int height = -1;
    tools().getTextSize(text, info, &width, &height);
    return {width, height};
  }

  // FNV-1a over all pixels, row by row.
  std::uint64_t hash() {
    std::uint64_t value = 0xcbf29ce484222325U;
    forEachPixel([&value](xplColor color) { value = (value ^ color.value()) * 0x100000001b3U; });
    return value;
  }

  int countOf(xplColor wanted) {
    int count = 0;
    forEachPixel([&count, wanted](xplColor color) { count += color == wanted ? 1 : 0; });
    return count;
  }

  // A line of text for each row: '#' where the pixel is white, '.' where it is black, '?' elsewhere.
  std::vector<std::string> rows() {
    std::vector<std::string> result;
    for (int y = 0; y < getHeight(); ++y) {
      std::string& row = result.emplace_back();
      for (int x = 0; x < getWidth(); ++x) {
        const xplColor color = getPixel(x, y);
        row += color == white ? '#' : color == black ? '.' : '?';
      }
    }
    return result;
  }

 private:
  template <class Visit>
  void forEachPixel(Visit visit) {
    for (int y = 0; y < getHeight(); ++y) {
      for (int x = 0; x < getWidth(); ++x) {
        visit(getPixel(x, y));
      }
    }
  }
};

xplTextDrawingInfo plain(const std::string& face, int points, int alignment = left) {
  xplTextDrawingInfo info;
  info.color = white;
  info.fontName = face;
  info.fontSize = points;
  info.alignment = alignment;
  info.nonAntialiased = 1;
  return info;
}

std::uint64_t hashOf(int x, const std::string& text, const xplTextDrawingInfo& info) {
  TextPicture canvas(520, 160);
  canvas.drawText(x, 5, text, info);
  return canvas.hash();
}

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

const std::string sampleText = "Hydra, Vega &\nx=7";

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

TEST(TextTest, LettersStandOnTheBaselineOfTheirFace) {
  TextPicture canvas(16, 14);
  canvas.drawText(1, 1, "Ag", plain("Courier New", 8));
  EXPECT_EQ(canvas.rows(), (std::vector<std::string>{
                               "................", "................", "................", "....#...........",
                               "...#.#....####..", "...#.#...#...#..", "..#...#..#...#..", "..#####..#...#..",
                               "..#...#..#...#..", ".#.....#..####..", ".............#..", ".........####...",
                               "................", "................"}));
}

TEST(TextTest, ProportionalLettersHaveWidthsOfTheirOwn) {
  TextPicture canvas(16, 14);
  canvas.drawText(1, 1, "Wi", plain("Arial", 8));
  EXPECT_EQ(canvas.rows(), (std::vector<std::string>{
                               "................", "................", "................", ".#...#...#.#....",
                               ".#...#...#......", "..#.#.#.#..#....", "..#.#.#.#..#....", "..#.#.#.#..#....",
                               "..#.#.#.#..#....", "...#...#...#....", "...#...#...#....", "................",
                               "................", "................"}));
}

TEST(TextTest, OnlyTheColorsOfTextAndBackgroundAppearWithoutAntialiasing) {
  TextPicture canvas(200, 40);
  canvas.drawText(4, 4, sampleText, plain("Arial", 12));
  EXPECT_GT(canvas.countOf(white), 100);
  EXPECT_EQ(canvas.countOf(white) + canvas.countOf(black), 200 * 40);
}

TEST(TextTest, AntialiasedTextHasColorsBetweenTextAndBackground) {
  xplTextDrawingInfo info = plain("Arial", 18);
  info.nonAntialiased = 0;
  TextPicture canvas(300, 80);
  canvas.drawText(4, 4, sampleText, info);
  EXPECT_GT(canvas.countOf(white), 100);
  EXPECT_LT(canvas.countOf(white) + canvas.countOf(black), 300 * 80);
}

TEST(TextTest, AFlagOtherThanOneLeavesAntialiasingOn) {
  xplTextDrawingInfo info = plain("Arial", 18);
  info.nonAntialiased = 2;
  xplTextDrawingInfo smooth = info;
  smooth.nonAntialiased = 0;
  EXPECT_EQ(hashOf(4, sampleText, info), hashOf(4, sampleText, smooth));
  EXPECT_NE(hashOf(4, sampleText, info), hashOf(4, sampleText, plain("Arial", 18)));
}

TEST(TextTest, AntialiasingDoesNotChangeTheSize) {
  TextPicture canvas(1, 1);
  for (const int points : {8, 10, 12, 16, 18, 48}) {
    xplTextDrawingInfo smooth = plain("Arial", points);
    smooth.nonAntialiased = 0;
    EXPECT_EQ(canvas.sizeOf(sampleText, smooth), canvas.sizeOf(sampleText, plain("Arial", points))) << points;
  }
}

TEST(TextTest, EmptyTextHasNoSizeAndDrawsNothing) {
  TextPicture canvas(50, 30);
  EXPECT_EQ(canvas.sizeOf("", plain("Arial", 12)), (std::pair{0, 0}));
  canvas.drawText(5, 5, "", plain("Arial", 12));
  EXPECT_EQ(canvas.countOf(black), 50 * 30);
}

TEST(TextTest, EitherSizeMayBeLeftOut) {
  class Measured : public TextPicture {
   public:
    using TextPicture::TextPicture;
    using TextPicture::tools;
  } canvas(1, 1);
  int width = -1;
  int height = -1;
  canvas.tools().getTextSize("ab", plain("Courier New", 12), &width, nullptr);
  canvas.tools().getTextSize("ab", plain("Courier New", 12), nullptr, &height);
  EXPECT_EQ(width, 20);
  EXPECT_EQ(height, 18);
}

TEST(TextTest, LinesEndAtLineFeedsAndCarriageReturns) {
  TextPicture canvas(1, 1);
  const xplTextDrawingInfo info = plain("Courier New", 12);
  for (const char* text : {"a\nbc", "a\r\nbc", "a\rbc", "a\n\rbc"}) {
    EXPECT_EQ(canvas.sizeOf(text, info), (std::pair{20, 36})) << testing::PrintToString(text);
  }
  for (const char* text : {"a\n\nbc", "a\r\n\r\nbc", "a\r\rbc", "a\r\r\nbc"}) {
    EXPECT_EQ(canvas.sizeOf(text, info), (std::pair{20, 54})) << testing::PrintToString(text);
  }
}

TEST(TextTest, ALineEndAtTheEndBeginsNoLine) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("a\n", plain("Courier New", 12)), (std::pair{10, 18}));
  EXPECT_EQ(canvas.sizeOf("\n", plain("Courier New", 12)), (std::pair{0, 18}));
}

TEST(TextTest, LinesAreAlignedOneByOne) {
  const xplTextDrawingInfo info = plain("Courier New", 12, right);
  TextPicture both(100, 50);
  both.drawText(90, 4, "abc\nx", info);
  TextPicture single(100, 50);
  single.drawText(90, 4, "abc", info);
  single.drawText(90, 22, "x", info);
  EXPECT_EQ(both.rows(), single.rows());
}

TEST(TextTest, CenteredTextOfOddWidthIsShiftedByHalfAPixelToTheRight) {
  TextPicture centeredCanvas(60, 30);
  centeredCanvas.drawText(30, 4, "i", plain("Courier New", 10, centered));  // 8 pixels wide
  TextPicture leftCanvas(60, 30);
  leftCanvas.drawText(26, 4, "i", plain("Courier New", 10));
  EXPECT_EQ(centeredCanvas.rows(), leftCanvas.rows());

  TextPicture oddCentered(60, 30);
  oddCentered.drawText(30, 4, "i", plain("Courier New", 8, centered));  // 7 pixels wide
  TextPicture oddLeft(60, 30);
  oddLeft.drawText(26, 4, "i", plain("Courier New", 8));
  EXPECT_EQ(oddCentered.rows(), oddLeft.rows());
}

TEST(TextTest, AnUnknownAlignmentIsLeft) {
  EXPECT_EQ(hashOf(100, "abc", plain("Arial", 12, 7)), hashOf(100, "abc", plain("Arial", 12, left)));
}

TEST(TextTest, SpacingIsTruncatedAndFollowsEachCharacter) {
  TextPicture canvas(1, 1);
  xplTextDrawingInfo info = plain("Courier New", 12);
  info.characterSpacing = 2.9F;
  EXPECT_EQ(canvas.sizeOf("abc\nd", info), (std::pair{36, 36}));
  info.characterSpacing = -2.9F;
  EXPECT_EQ(canvas.sizeOf("abc\nd", info), (std::pair{24, 36}));
}

TEST(TextTest, SpacedCharactersStandApart) {
  xplTextDrawingInfo info = plain("Courier New", 12);
  TextPicture apart(60, 20);
  apart.drawText(1, 1, "a", info);
  apart.drawText(16, 1, "b", info);
  info.characterSpacing = 5.0F;
  TextPicture spaced(60, 20);
  spaced.drawText(1, 1, "ab", info);
  EXPECT_EQ(spaced.rows(), apart.rows());
}

TEST(TextTest, SpacingEndsWithItsText) {
  xplTextDrawingInfo info = plain("Courier New", 12);
  TextPicture canvas(1, 1);
  info.characterSpacing = 5.0F;
  EXPECT_EQ(canvas.sizeOf("ab", info).first, 30);
  info.characterSpacing.reset();
  EXPECT_EQ(canvas.sizeOf("ab", info).first, 20);
}

TEST(TextTest, AnAbsentSizeIsTenPointsAndAnAbsentFaceArial) {
  xplTextDrawingInfo info = plain("Arial", 10);
  const std::uint64_t expected = hashOf(4, sampleText, info);
  info.fontName.reset();
  info.fontSize.reset();
  EXPECT_EQ(hashOf(4, sampleText, info), expected);
}

TEST(TextTest, ASizeOfZeroGivesLinesOfSixteenPixels) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("Hxgy, Qj 09", plain("Courier New", 0)), (std::pair{88, 16}));
  EXPECT_EQ(canvas.sizeOf("Hxgy, Qj 09", plain("Arial", 0)), (std::pair{74, 16}));
}

TEST(TextTest, ANegativeSizeGivesLinesOfThatHeight) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("Hxgy, Qj 09", plain("Courier New", -30)), (std::pair{231, 40}));
}

TEST(TextTest, AnAmpersandIsDrawnAsItStands) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("a&b&&", plain("Courier New", 12)), (std::pair{50, 18}));
}

TEST(TextTest, ATabIsACharacterLikeOthers) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf("a\tb", plain("Courier New", 12)), (std::pair{30, 18}));
}

TEST(TextTest, TextEndsAtAZeroByte) {
  TextPicture canvas(1, 1);
  EXPECT_EQ(canvas.sizeOf(std::string("ab\0cd", 5), plain("Courier New", 12)), (std::pair{20, 18}));
}

TEST(TextTest, AThinFaceThatTheFamilyLacksIsTheRegularOne) {
  xplTextDrawingInfo info = plain("Courier New", 12);
  const std::uint64_t regular = hashOf(4, sampleText, info);
  info.thin = 1;
  EXPECT_EQ(hashOf(4, sampleText, info), regular);
}

TEST(TextTest, TextAcrossTheEdgesIsClipped) {
  const xplTextDrawingInfo info = plain("Arial", 48);
  TextPicture whole(200, 200);
  whole.drawText(60, 60, "Qy", info);
  TextPicture part(40, 40);
  part.drawText(-20, -10, "Qy", info);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) {
      ASSERT_EQ(part.getPixel(x, y), whole.getPixel(x + 80, y + 70)) << x << ' ' << y;
    }
  }
  EXPECT_GT(part.countOf(white), 0);
}

TEST(TextTest, TextFarOutsideDrawsNothing) {
  TextPicture canvas(20, 20);
  for (const int alignment : {left, centered, right}) {
    canvas.drawText(30000, 5, "abc", plain("Arial", 12, alignment));
    canvas.drawText(-30000, 5, "abc", plain("Arial", 12, alignment));
    canvas.drawText(5, 30000, "abc", plain("Arial", 12, alignment));
    canvas.drawText(5, -30000, "abc", plain("Arial", 12, alignment));
  }
  EXPECT_EQ(canvas.countOf(black), 20 * 20);
}

}  // namespace
