// What the tests of paragraphs share: a paragraph on the window.
#pragma once

#include "quotes/quotesFixture.h"
#include "quotes/spriteParagraphDimming.h"

class DimmingParagraph : public QuotesOnAWindow {
 protected:
  static constexpr float frame = 0.04F;

  DimmingParagraph() {
    TorvTextStyle style;
    style.useWindowTextColor = false;
    style.textColor = xplColor(200, 100, 50);
    paragraph.setStyle(style);
    paragraph.setRenderWindow(&window);
  }
  void run(int frames) {
    for (int i = 0; i < frames; ++i) {
      paragraph.update(frame);
    }
  }
  // The states of the lines, top to bottom.
  std::vector<int> states() const {
    std::vector<int> result;
    for (const cSpriteParagraphDimming* line = &paragraph; line != nullptr; line = line->next()) {
      result.push_back(line->state());
    }
    return result;
  }
  const cSpriteParagraphDimming& lineAt(int index) const {
    const cSpriteParagraphDimming* line = &paragraph;
    for (int i = 0; i < index; ++i) {
      line = line->next();
    }
    return *line;
  }
  cSpriteParagraphDimming paragraph{"paragraph"};
};
