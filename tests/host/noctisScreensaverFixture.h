// What the tests of the screen saver object share: a window, what a viewer sees on it, and the log's new
// entries.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "host/noctisScreensaver.h"
#include "windowharness/testWindow.h"

class NoctisScreensaver : public PrivateFolders {
 protected:
  static constexpr int width = 160;
  static constexpr int height = 120;

  // The log's entries since the last call.
  std::vector<std::string> newEntries() {
    const auto all = logEntries();
    const std::vector<std::string> entries(all.begin() + static_cast<std::ptrdiff_t>(m_seen), all.end());
    m_seen = all.size();
    return entries;
  }
  // Those of the entries that are among the wanted ones, in their order.
  static std::vector<std::string> among(const std::vector<std::string>& entries,
                                        const std::vector<std::string>& wanted) {
    std::vector<std::string> found;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(found), [&](const std::string& entry) {
      return std::find(wanted.begin(), wanted.end(), entry) != wanted.end();
    });
    return found;
  }
  std::string handleText() {
    return stringFormat("%X", static_cast<unsigned>(xplHandleNumber(window.handle())));
  }
  // What a viewer sees, row by row.
  std::vector<xplColor> shown() {
    std::vector<xplColor> pixels;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        pixels.push_back(window.shownPixel(x, y));
      }
    }
    return pixels;
  }
  std::vector<xplColor> nextFrame(noctisScreensaver& saver) {
    saver.drawOneFrame();
    saver.flushOneFrame();
    return shown();
  }

  TestWindow window{width, height, 30, 20};

 private:
  std::size_t m_seen = 0;
};
