// Tests of drawing images on the window.
#include <string>

#include <gtest/gtest.h>

#include "graphics/image.h"
#include "graphics/window.h"
#include "imageFixture.h"
#include "windowharness/testWindow.h"

namespace {

class ImageOnWindowTest : public ImageFixture {
 protected:
  void SetUp() override { m_window.fillRect(xplRect<int>(0, 0, 8, 6), blue); }

  // Every pixel of the window, row by row; 'r', 'g' and 'b' for the three colours, '?' for any other.
  std::string shown() {
    std::string text;
    for (int y = 0; y < 6; ++y) {
      for (int x = 0; x < 8; ++x) {
        const xplColor color = m_window.getPixel(x, y);
        text += color == red ? 'r' : color == green ? 'g' : color == blue ? 'b' : '?';
      }
      text += '\n';
    }
    return text;
  }

  TestWindow m_native{8, 6};
  xplWindow m_window{m_native.handle()};
};

TEST_F(ImageOnWindowTest, AnImageIsDrawnWholeAtItsPlace) {
  xplImage image;
  image.initWithSizeAndColor(3, 2, red);
  image.setPixel(1, 0, green);
  image.drawOnWindow(m_window, 2, 1);
  EXPECT_EQ(shown(),
            "bbbbbbbb\n"
            "bbrgrbbb\n"
            "bbrrrbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n");
}

TEST_F(ImageOnWindowTest, PixelsOfTheTransparentColorAreLeftOut) {
  xplImage image;
  image.initWithSizeAndColor(3, 2, red);
  image.setPixel(1, 0, green);
  image.setPixel(0, 1, xplColor(254, 0, 0));
  image.setTransparentColor(red);
  image.drawOnWindow(m_window, 2, 1);
  EXPECT_EQ(shown(),
            "bbbbbbbb\n"
            "bbbgbbbb\n"
            "bb?bbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n");
}

TEST_F(ImageOnWindowTest, AnImageAcrossTheEdgesIsClipped) {
  xplImage image;
  image.initWithSizeAndColor(4, 4, red);
  image.drawOnWindow(m_window, -2, -3);
  image.drawOnWindow(m_window, 7, 4);
  EXPECT_EQ(shown(),
            "rrbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbb\n"
            "bbbbbbbr\n"
            "bbbbbbbr\n");
}

TEST_F(ImageOnWindowTest, AnImageWithoutBitmapDrawsNothing) {
  xplImage image;
  image.drawOnWindow(m_window, 0, 0);
  image.setTransparentColor(red);
  image.drawOnWindow(m_window, 0, 0);
  EXPECT_EQ(shown().find_first_not_of("b\n"), std::string::npos);
}

TEST_F(ImageOnWindowTest, DrawingGoesToTheWindowItselfWithoutTheBackBuffer) {
  xplImage image;
  image.initWithSizeAndColor(2, 2, red);
  m_window.setUseBackBuffer(false);
  image.drawOnWindow(m_window, 0, 0);
  EXPECT_EQ(red, m_native.shownPixel(1, 1)) << "seen at once";
  EXPECT_EQ(xplColor(0, 0, 0), m_native.shownPixel(2, 1));
  m_window.setUseBackBuffer(true);
  EXPECT_EQ(shown().find('r'), std::string::npos);
}

}  // namespace
