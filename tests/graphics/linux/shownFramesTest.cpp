// What a window shows of what was drawn: no less, and no more than has changed.
#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "graphics/linux/memoryWindow.h"
#include "graphics/window.h"
#include "harness/privateFolders.h"

namespace {

std::string describe(std::span<const xplEdges> parts) {
  std::string text;
  for (const auto& part : parts) {
    text += std::to_string(part.left) + "," + std::to_string(part.top) + "-" + std::to_string(part.right) +
            "," + std::to_string(part.bottom) + " ";
  }
  return text;
}

// Records what it is told to show.
class RecordingWindow : public MemoryWindow {
 public:
  using MemoryWindow::MemoryWindow;
  void present(PixelMemory& memory, std::span<const xplEdges> parts) override {
    events += "present " + describe(parts);
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
  EXPECT_EQ("present 128,18-130,19 ", native.events);
  window.setPixel(1, 1, {1, 2, 3});
  EXPECT_EQ("present 128,18-130,19 wait ", native.events);
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

// Keeps what it was told to show, and nothing else.
class ShowingWindow : public MemoryWindow {
 public:
  using MemoryWindow::MemoryWindow;
  void present(PixelMemory& memory, std::span<const xplEdges> parts) override {
    for (const xplEdges& part : parts) {
      for (int y = part.top; y < part.bottom; ++y) {
        const std::size_t row = static_cast<std::size_t>(y) * memory.stride();
        std::copy(memory.pixels() + row + part.left, memory.pixels() + row + part.right,
                  shown.begin() + static_cast<std::ptrdiff_t>(row) + part.left);
      }
    }
    drawn.assign(memory.pixels(), memory.pixels() + shown.size());
  }

  std::vector<std::uint32_t> shown = std::vector<std::uint32_t>(std::size_t{200} * 100, 0);
  std::vector<std::uint32_t> drawn;
};

TEST_F(PrivateFolders, WhateverIsDrawnTheWindowShowsAllOfIt) {
  ShowingWindow native{{0, 0, 200, 100}, {}};
  xplWindow window{&native};
  xplImage image;
  image.initWithSizeAndColor(9, 9, {7, 7, 7});
  unsigned seed = 1;
  const auto upTo = [&seed](int end) {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<int>((seed >> 8) % static_cast<unsigned>(end));
  };
  for (int frame = 0; frame < 200; ++frame) {
    window.fillRect(xplRect<int>(0, 0, 200, 100), {1, 2, 3});
    for (int i = 0; i < 12; ++i) {
      const int x = upTo(220) - 10;
      const int y = upTo(120) - 10;
      const auto shade = static_cast<std::uint8_t>(upTo(3) * 100);
      switch (upTo(6)) {
        case 0:
          window.setPixel(x, y, {shade, 0, 0});
          break;
        case 1:
          window.fillCircle(x, y, upTo(12), {shade, 9, 9});
          break;
        case 2:
          window.drawLine(x, y, upTo(200), upTo(100), 1 + upTo(3), {shade, 8, 8});
          break;
        case 3:
          window.drawText(x, y, "Moon", nullptr);
          break;
        case 4:
          image.drawOnWindow(window, x, y);
          break;
        default:
          window.fillRect(xplRect<int>(x, y, x + upTo(40), y + upTo(20)), {shade, 4, 4});
      }
    }
    window.flush();
    ASSERT_EQ(native.shown, native.drawn) << "frame " << frame;
  }
}

TEST_F(ShownFrames, AllIsSentAgainWhenTheWindowLostIt) {
  native.isLost = true;
  window.flush();
  EXPECT_EQ("present 0,0-130,8 0,8-130,16 0,16-130,20 ", native.events);
}

}  // namespace
