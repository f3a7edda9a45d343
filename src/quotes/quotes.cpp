// Builds the collection of quotes and draws from it.
#include "quotes/quotes.h"

#include <algorithm>

#include "quotes/builtInQuotes.h"
#include "support/log.h"

namespace {

constexpr int maxDraws = 11;

// Deliberate: these are shown on the sky like quotes. Who finds one there knows at once why there is no
// quote, and can search for it; an empty place would say nothing.
constexpr const char* textWithoutCategories = "empty allowedCategories";
constexpr const char* textWithoutQuotes = "empty quotesDynamicList";

}  // namespace

xplVectorAsDB<sQuote>& cQuotes::quotesList() {
  static xplVectorAsDB<sQuote> list = loadQuotes();
  return list;
}

xplVectorAsDB<sQuote> cQuotes::loadQuotes() {
  xplVectorAsDB<sQuote> list;
  for (const sQuote& quote : builtInQuotes) {
    list.append(quote);
  }
  loadUserQuotes(list);
  logInfo().addf("cQuotes::quotesList() loaded %i quotes", static_cast<int>(list.size()));
  return list;
}

std::size_t cQuotes::countQuotes(std::int32_t category) {
  return quotesList().countWhere(quotesWhere(category));
}

// Deliberate: a category that is hit without being allowed is removed for the rest of the process, and
// turning it on again does not bring it back. And after the last draw that is tried its text is shown
// although it is not allowed: it is the only way in which a category without a setting can appear, as soon as
// there are more categories than draws. How many draws a quote costs, and so every frame after it, depends on
// both.
const char* cQuotes::getNextQuote(const std::vector<std::int32_t>& allowedCategories) {
  if (allowedCategories.empty()) {
    return textWithoutCategories;
  }
  xplVectorAsDB<sQuote>& list = quotesList();
  if (list.empty()) {
    return textWithoutQuotes;
  }
  const char* text = "";
  for (int i = 0; i < maxDraws; ++i) {
    const sQuote* drawn = list.getRandom();
    if (drawn == nullptr) {
      return "";
    }
    text = drawn->text;
    const std::int32_t category = drawn->category;
    if (std::find(allowedCategories.begin(), allowedCategories.end(), category) != allowedCategories.end()) {
      return text;
    }
    list.removeWhere(quotesWhere(category));
  }
  return text;
}
