// What the tests of the quotes label share: a label with an area on the window, and a source of texts.
#pragma once

#include <stdexcept>

#include "quotes/quotesFixture.h"
#include "quotes/quotesSprite.h"
#include "quotes/quotesStyle.h"
#include "support/random.h"

class QuotesLabel : public QuotesOnAWindow {
 protected:
  static constexpr float frame = 0.04F;
  // What the label is given next, and what it asked for.
  static inline const char* nextText = "";
  static inline int timesAsked = 0;
  static inline std::vector<std::int32_t> askedFor;
  static const char* giveText(const std::vector<std::int32_t>& allowed) {
    ++timesAsked;
    askedFor = allowed;
    return nextText;
  }

  QuotesLabel() {
    nextText = "first line|second line";
    timesAsked = 0;
    askedFor.clear();
    label.setRenderWindow(&window);
    label.setStyle(quotesStyle());
    label.renderRect = xplRect<float>(10.0F, 20.0F, 620.0F, 440.0F);
  }
  void run(int frames) {
    for (int i = 0; i < frames; ++i) {
      label.update(frame);
    }
  }
  // Frames until another quote is asked for.
  int framesUntilNextQuote() {
    const int before = timesAsked;
    int frames = 0;
    for (; timesAsked == before && frames < 100000; ++frames) {
      label.update(frame);
    }
    return frames;
  }
  int countTries() const {
    int count = 0;
    for (const std::string& entry : logEntries()) {
      count += entry.rfind("x: ", 0) == 0 ? 1 : 0;
    }
    return count;
  }
  cQuotesSprite label{giveText};
};
