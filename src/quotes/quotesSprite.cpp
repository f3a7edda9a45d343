// Chooses quotes and their places.
#include "quotes/quotesSprite.h"

#include "quotes/quoteLines.h"
#include "quotes/quotes.h"
#include "quotes/quotesStyle.h"
#include "sprites/wholePixel.h"
#include "support/log.h"
#include "support/random.h"
#include "support/settingsGroups.h"

namespace {

constexpr float pauseBetweenQuotes = 3.0F;  // seconds

// Deliberate: after as many places the last one is taken, free or not. A quote that covers the moon for a
// while is better than none, and the draws that follow depend on when the search ends.
constexpr int maxTries = 11;

std::vector<std::int32_t> allowedCategories() {
  const cAppSettings settings;
  std::vector<std::int32_t> allowed;
  const auto add = [&allowed](const xplSetting<bool>& setting, std::int32_t category) {
    if (setting.read()) {
      allowed.push_back(category);
    }
  };
  add(settings.showQuotes_Advice, quoteCategory::advice);
  add(settings.showQuotes_Wisdom, quoteCategory::wisdom);
  add(settings.showQuotes_Peace, quoteCategory::peace);
  add(settings.showQuotes_WomenVSMen, quoteCategory::womenVsMen);
  add(settings.showQuotes_Funny, quoteCategory::funny);
  add(settings.showQuotes_Love, quoteCategory::love);
  add(settings.showQuotes_UserQuotes, quoteCategory::user);
  return allowed;
}

// Rectangles that touch overlap.
bool overlap(const xplRect<float>& a, const xplRect<float>& b) {
  return !(a.getRight() < b.left || b.getRight() < a.left || a.getBottom() < b.top || b.getBottom() < a.top);
}

bool liesInside(const xplRect<float>& inner, const xplRect<float>& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.getRight() <= outer.getRight() &&
         inner.getBottom() <= outer.getBottom();
}

}  // namespace

cQuotesSprite::cQuotesSprite() : cQuotesSprite(cQuotes::getNextQuote) {}

void cQuotesSprite::initialize(xplWindow* window) {
  setRenderWindow(window);
  setStyle(quotesStyle());
  cQuotes::quotesList();
}

void cQuotesSprite::update(float elapsedSec) {
  if (m_startDelay > 0.0F) {
    m_startDelay -= elapsedSec;
    return;
  }
  cSpriteParagraphDimming::update(elapsedSec);
  bool pauseIsOver = false;
  if (isDone()) {
    m_pause -= elapsedSec;
    pauseIsOver = m_pause <= 0.0F;
  } else {
    m_pause = pauseBetweenQuotes;
  }
  if (pauseIsOver || m_firstTime) {
    loadNextQuote();
    selectRandomPosition();
    start(m_paragraphRect.left, m_paragraphRect.top, 0);
    m_firstTime = false;
  }
}

void cQuotesSprite::loadNextQuote() {
  const logFunctionLife block("loadNextQuote()");
  const char* quote = "";
  try {
    quote = m_source(allowedCategories());
    // The log cuts longer entries anyway; the limit keeps it from walking to the end of a very long text.
    logInfo().addf("getNextQuote() returned:%.8000s", quote);
  } catch (...) {  // a step that fails must not end the frame; what is shown then is an empty quote
    logError().add("getNextQuote() exception");
  }
  setParagraph(quoteLines(quote));
}

void cQuotesSprite::selectRandomPosition() {
  logInfo().addf("selecting random position for quote:%s", text().c_str());
  const auto right = static_cast<float>(renderRect.getRight());
  const auto bottom = static_cast<float>(renderRect.getBottom());
  xplRect<float>& rect = m_paragraphRect;
  for (int i = 0; i < maxTries; ++i) {
    const float across = xplRandom::unit();
    rect.left = across * ((right - rect.width) - renderRect.left) + renderRect.left;
    const float down = xplRandom::unit();
    rect.top = down * ((bottom - rect.height) - renderRect.top) + renderRect.top;
    logInfo().addf("m_renderRect.top: %i, m_renderRect.getBottom(): %i", wholePixel(renderRect.top),
                   wholePixel(renderRect.getBottom()));
    logInfo().addf("x: %i, width:%i, y:%i, height:%i", wholePixel(rect.left), wholePixel(rect.width),
                   wholePixel(rect.top), wholePixel(rect.height));
    if (placeIsFree()) {
      return;
    }
  }
}

bool cQuotesSprite::placeIsFree() const {
  return !overlap(m_paragraphRect, avoidRect1) && !overlap(m_paragraphRect, avoidRect2) &&
         liesInside(m_paragraphRect, renderRect);
}
