// A frame in which no text changes takes no memory: every allocation of the program is counted.
#include "harness/allocationCount.h"
#include "quotes/quotesFixture.h"
#include "quotes/quotesSprite.h"

namespace {

int timesAsked = 0;

const char* giveText(const std::vector<std::int32_t>&) {
  ++timesAsked;
  return "The first line of three, a long one|the second|and the third, with \"signs\"";
}

class QuotesLabelMemory : public QuotesOnAWindow {};

TEST_F(QuotesLabelMemory, IsTakenOnlyWhenAQuoteBegins) {
  cQuotesSprite label(giveText);
  label.initialize(&window);
  label.renderRect = xplRect<float>(10.0F, 20.0F, 620.0F, 440.0F);
  label.update(6.0F);
  int quotes = 0;
  long atQuotes = 0;
  for (int i = 0; i < 2500; ++i) {
    const long before = allocationCount();
    const int asked = timesAsked;
    label.update(0.04F);
    label.draw();
    const long taken = allocationCount() - before;
    if (timesAsked != asked) {
      ++quotes;
      atQuotes += taken;
    } else if (quotes > 1) {  // the first one fills the caches of fonts and glyphs
      ASSERT_EQ(0, taken) << "frame " << i;
    }
  }
  EXPECT_GE(quotes, 3);
  EXPECT_GT(atQuotes, 0) << "the count works";
}

}  // namespace
