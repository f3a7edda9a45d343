// The process-wide collection of quotes: the built-in ones and those of the user's file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "quotes/quote.h"
#include "quotes/vectorAsDB.h"

// Matches the quotes of one category.
class quotesWhere : public xplVectorAsDB_where<sQuote> {
 public:
  explicit quotesWhere(std::int32_t category) : m_category(category) {}
  bool matches(const sQuote& quote) const override { return quote.category == m_category; }

 private:
  std::int32_t m_category;
};

class cQuotes {
 public:
  // The list from which quotes are drawn. Built by the first call, which reads the user's file: make that
  // call before the first frame. Used by one thread after that.
  static xplVectorAsDB<sQuote>& quotesList();
  // A new list: the built-in quotes in their order, then the user's. Tests put it in the place of the list.
  static xplVectorAsDB<sQuote> loadQuotes();
  // Appends a quote for each line of the user's file that is not empty, up to the 32768 that chance can
  // reach; a file that cannot be read adds none. The texts stay for the life of the process.
  static void loadUserQuotes(xplVectorAsDB<sQuote>& list);
  // The file's full path. Its folder and the file are made where missing; "" without a folder for user data.
  static std::string userQuotesFilePath();
  static std::size_t countQuotes(std::int32_t category);
  // The text of a quote of one of these categories, chosen by chance; it stays for the life of the process. A
  // category that is hit without being allowed leaves the list for good. Without allowed categories, or
  // without any quotes, the text says so; it is empty when the last quotes leave the list meanwhile.
  static const char* getNextQuote(const std::vector<std::int32_t>& allowedCategories);
};
