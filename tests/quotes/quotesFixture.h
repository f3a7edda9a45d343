// What the tests of quotes share: a user quotes file, a fresh list, and a black window.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "quotes/quotes.h"
#include "support/fileSystem.h"
#include "windowharness/testWindow.h"

class Quotes : public PrivateFolders {
 protected:
  // Where the file is looked for; its folder is made.
  std::string userFile() const {
    const std::string folder =
        xplFileSystemMini::joinPath(xplFileSystemMini::getFolder_UserData(), "Lunaria software");
    xplFileSystemMini::createFolder(folder);
    return xplFileSystemMini::joinPath(folder, "userQuotes.txt");
  }

  // Puts a new list, with a user file of this content, in the place of the process's.
  xplVectorAsDB<sQuote>& freshList(const std::string& userContent = "") {
    writeFile(userFile(), userContent);
    xplVectorAsDB<sQuote>& list = cQuotes::quotesList();
    list = cQuotes::loadQuotes();
    return list;
  }

  // The texts of the user's file with this content, in order.
  std::vector<std::string> userQuotes(const std::string& content) {
    writeFile(userFile(), content);
    return loadedUserQuotes();
  }

  // The texts of whatever stands in the user file's place.
  static std::vector<std::string> loadedUserQuotes() {
    xplVectorAsDB<sQuote> list;
    cQuotes::loadUserQuotes(list);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < list.size(); ++i) {
      EXPECT_EQ(quoteCategory::user, list[i].category);
      texts.emplace_back(list[i].text);
    }
    return texts;
  }

  static std::size_t countOf(const xplVectorAsDB<sQuote>& list, std::int32_t category) {
    return list.countWhere(quotesWhere(category));
  }
};

// Adds a black window of 640 x 480 pixels and a look at what was drawn on it.
class QuotesOnAWindow : public Quotes {
 protected:
  QuotesOnAWindow() { clear(); }
  void clear() { window.fillRect(xplRect<int>(0, 0, 640, 480), {0, 0, 0}); }
  // How many pixels of these rows, top to bottom (excluded), are not black.
  int drawnPixels(int top = 0, int bottom = 480) {
    int count = 0;
    for (int y = top; y < bottom; ++y) {
      for (int x = 0; x < 640; ++x) {
        count += window.getPixel(x, y) != xplColor(0, 0, 0) ? 1 : 0;
      }
    }
    return count;
  }

  TestWindow native{640, 480};
  xplWindow window{native.handle()};
};
