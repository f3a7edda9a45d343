// Whatever stands in the user's file: every frame is quick.
#include <algorithm>

#include "quotes/processorTime.h"
#include "quotes/quotesLabelFixture.h"

namespace {

class HostileQuotes : public QuotesLabel {
 protected:
  // The longest frame in milliseconds of processor time, of the first one with the next text and some in
  // which its lines fade in.
  double longestFrame() {
    cQuotesSprite shown(giveText);
    shown.initialize(&window);
    shown.renderRect = label.renderRect;
    shown.update(10.0F);
    double longest = 0.0;
    for (int i = 0; i < 120; ++i) {
      const double start = processorTimeMs();
      shown.update(frame);
      shown.draw();
      longest = std::max(longest, processorTimeMs() - start);
    }
    return longest;
  }

  // Shows the only quote of a file with this content.
  void expectQuickFrames(const std::string& content) {
    const std::vector<std::string> texts = userQuotes(content);
    ASSERT_EQ(1U, texts.size());
    nextText = texts.front().c_str();
    EXPECT_LT(longestFrame(), 100.0);
    EXPECT_EQ(1, timesAsked);
  }
};

TEST_F(HostileQuotes, OfTenMillionCharactersAreShownInQuickFrames) {
  expectQuickFrames(std::string(10'000'000, 'x') + "\n");
}

TEST_F(HostileQuotes, OfTenMillionBarsAreShownInQuickFrames) {
  expectQuickFrames(std::string(10'000'000, '|') + "\n");
}

TEST_F(HostileQuotes, OfAMillionShortLinesAreShownInQuickFrames) {
  std::string content;
  for (int i = 0; i < 1'000'000; ++i) {
    content += "moonlight|";
  }
  expectQuickFrames(content + "\n");
}

TEST_F(HostileQuotes, OfThousandsOfDifferentCharactersAreShownInQuickFrames) {
  std::string content;
  for (int i = 0; i < 0x5000; ++i) {  // in UTF-8 the characters from U+4000 on; elsewhere just bytes
    content += static_cast<char>(0xE4 + (i >> 12));
    content += static_cast<char>(0x80 | ((i >> 6) & 0x3F));
    content += static_cast<char>(0x80 | (i & 0x3F));
    content += i % 60 == 0 ? "|" : "";
  }
  expectQuickFrames(content + "\n");
}

TEST_F(HostileQuotes, OfBytesThatAreNoTextAreShownInQuickFrames) {
  std::string content;
  for (int i = 0; i < 1'000'000; ++i) {
    const char byte = static_cast<char>(i * 37);
    content += byte == '\n' || byte == '\0' ? '?' : byte;
  }
  expectQuickFrames(content + "\n");
}

}  // namespace
