// Which parts of a picture are sent to the display.
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "graphics/linux/heapPixelMemory.h"
#include "graphics/linux/memoryWindow.h"
#include "graphics/linux/tileChanges.h"
#include "graphics/window.h"
#include "harness/privateFolders.h"

namespace {

std::string describe(const std::vector<xplEdges>& parts) {
  std::string text;
  for (const auto& part : parts) {
    text += std::to_string(part.left) + "," + std::to_string(part.top) + "-" + std::to_string(part.right) +
            "," + std::to_string(part.bottom) + " ";
  }
  return text;
}

class TileChangesTest : public testing::Test {
 protected:
  HeapPixelMemory memory{200, 40};
  TileChanges changes{200, 40};

  void write(int x, int y, std::uint32_t word) {
    memory.pixels()[static_cast<std::size_t>(y) * memory.stride() + static_cast<std::size_t>(x)] = word;
    changes.mark(y, x, x + 1);
  }
};

TEST_F(TileChangesTest, AtFirstEverythingIsNew) {
  EXPECT_EQ("0,0-200,8 0,8-200,16 0,16-200,24 0,24-200,32 0,32-200,40 ",
            describe(changes.takeChanged(memory)));
  EXPECT_EQ("", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, APixelChangesItsTile) {
  changes.takeChanged(memory);
  write(199, 39, 5);
  EXPECT_EQ("192,32-200,40 ", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, NeighboursInARowAreOnePart) {
  changes.takeChanged(memory);
  write(0, 0, 5);
  write(32, 7, 5);
  write(199, 3, 5);
  EXPECT_EQ("0,0-64,8 192,0-200,8 ", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, WhatIsDrawnOverAndPutBackHasNotChanged) {
  changes.takeChanged(memory);
  const auto before = memory.pixels()[70];
  write(70, 0, 5);
  write(70, 0, before);
  EXPECT_EQ("", describe(changes.takeChanged(memory)));
}

TEST_F(TileChangesTest, WhatWasLostIsNewAgain) {
  changes.takeChanged(memory);
  changes.forgetShown();
  EXPECT_EQ("0,0-200,8 0,8-200,16 0,16-200,24 0,24-200,32 0,32-200,40 ",
            describe(changes.takeChanged(memory)));
}

TEST(TileChangesOfNothing, AreNone) {
  HeapPixelMemory memory(0, 0);
  TileChanges changes(0, 0);
  EXPECT_TRUE(changes.takeChanged(memory).empty());
}

// Records what it is told to show.
class RecordingWindow : public MemoryWindow {
 public:
  using MemoryWindow::MemoryWindow;
  void present(PixelMemory& memory, std::span<const xplEdges> parts) override {
    events += "present " + describe({parts.begin(), parts.end()});
    MemoryWindow::present(memory, parts);
  }
  void waitUntilShown() override { events += "wait "; }
  bool takeContentLost() override { return std::exchange(isLost, false); }

  std::string events;
  bool isLost = false;
};

class ShownFrames : public PrivateFolders {
 protected:
  ShownFrames() {
    window.flush();
    window.setPixel(0, 0, {0, 0, 0});  // waits for the first frame
    native.events.clear();
  }
  RecordingWindow native{{0, 0, 130, 20}, {}};
  xplWindow window{&native};
};

TEST_F(ShownFrames, AFrameThatIsTheSameIsNotSent) {
  window.fillRect(xplRect<int>(0, 0, 130, 20), {0, 0, 0});
  window.flush();
  EXPECT_EQ("", native.events);
}

TEST_F(ShownFrames, OnlyTheChangedTileIsSentAndAwaitedBeforeTheNextDrawing) {
  window.setPixel(128, 18, {1, 2, 3});
  window.flush();
  EXPECT_EQ("present 128,16-130,20 ", native.events);
  window.setPixel(1, 1, {1, 2, 3});
  EXPECT_EQ("present 128,16-130,20 wait ", native.events);
}

TEST_F(ShownFrames, EveryKindOfDrawingIsSeen) {
  const auto seen = [this] {
    window.flush();
    const bool wasSent = native.events.find("present") != std::string::npos;
    native.events.clear();
    return wasSent;
  };
  window.fillRect(xplRect<int>(0, 0, 5, 5), {9, 9, 9});
  EXPECT_TRUE(seen());
  window.fillCircle(20, 10, 5, {9, 9, 9});
  EXPECT_TRUE(seen());
  window.drawLine(40, 0, 60, 10, 1, {9, 9, 9});
  EXPECT_TRUE(seen());
  window.drawText(70, 0, "M", nullptr);
  EXPECT_TRUE(seen());
  xplImage image;
  image.initWithSizeAndColor(4, 4, {7, 7, 7});
  image.drawOnWindow(window, 100, 0);
  EXPECT_TRUE(seen());
  image.setTransparentColor({1, 1, 1});
  image.drawOnWindow(window, 110, 0);
  EXPECT_TRUE(seen());
}

TEST_F(ShownFrames, AllIsSentAgainWhenTheWindowLostIt) {
  native.isLost = true;
  window.flush();
  EXPECT_EQ("present 0,0-130,8 0,8-130,16 0,16-130,20 ", native.events);
}

}  // namespace
