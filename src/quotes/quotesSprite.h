// The quotes label: shows one quote after another, each at a place of its own.
#pragma once

#include <cstdint>
#include <vector>

#include "quotes/spriteParagraphDimming.h"

class cQuotesSprite : public cSpriteParagraphDimming {
 public:
  // Gives the text of a quote of one of the categories; it stays until the next call. May throw.
  using Source = const char* (*)(const std::vector<std::int32_t>& allowedCategories);

  // Quotes come from cQuotes.
  cQuotesSprite();
  explicit cQuotesSprite(Source source) : cSpriteParagraphDimming("quotesLabel"), m_source(source) {}

  // Borrows the window, takes the style of quotes, and has the collection read, which may take a while.
  void initialize(xplWindow* window);

  // One frame; seconds. The first quote begins 5 s after the first frame, each next one 3 s after the last
  // has faded out.
  void update(float elapsedSec) override;

  // Takes the next quote of the categories that the settings allow.
  void loadNextQuote();
  // Moves the paragraph's rectangle to a place inside the area that keeps clear of the two others, where
  // chance finds one within eleven tries.
  void selectRandomPosition();

  xplRect<float> renderRect;  // where quotes may stand
  xplRect<float> avoidRect1;  // areas that a quote keeps clear of
  xplRect<float> avoidRect2;

 private:
  bool placeIsFree() const;

  Source m_source;
  bool m_firstTime = true;
  float m_startDelay = 5.0F;  // seconds
  float m_pause = 10.0F;      // seconds left before the next quote
};
