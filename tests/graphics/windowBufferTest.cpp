// How the window's back buffer and what is seen belong together, and where the window lies.
#include "graphics/image.h"
#include "windowOperationsFixture.h"

TEST_F(WindowOperations, NothingIsSeenBeforeTheFlush) {
  window.fillRect(xplRect<int>(0, 0, 40, 30), red);
  EXPECT_EQ(xplColor(0, 0, 0), canvas.native().shownPixel(5, 5));
  window.flush();
  EXPECT_EQ(red, canvas.native().shownPixel(5, 5));
  EXPECT_EQ(red, canvas.native().shownPixel(39, 29));
}

TEST_F(WindowOperations, DrawingStraightToTheWindowLeavesTheBackBufferAlone) {
  window.flush();
  window.setUseBackBuffer(false);
  window.fillRect(xplRect<int>(0, 0, 20, 30), red);
  EXPECT_EQ(red, canvas.native().shownPixel(19, 5)) << "seen at once";
  EXPECT_EQ(white, canvas.native().shownPixel(20, 5));
  window.flush();
  EXPECT_EQ(red, canvas.native().shownPixel(0, 0)) << "a flush does nothing meanwhile";
  window.setUseBackBuffer(true);
  EXPECT_EQ(white, window.getPixel(0, 0));
  window.flush();
  EXPECT_EQ(white, canvas.native().shownPixel(0, 0));
}

TEST_F(WindowOperations, WithoutANativeWindowDoNothing) {
  xplWindow none(nullptr);
  EXPECT_EQ(0, none.getWidth());
  EXPECT_EQ(0, none.getHeight());
  none.clear();
  none.fillRect(xplRect<int>(0, 0, 10, 10), red);
  none.drawLine(0, 0, 5, 5, 1, red);
  none.setPixel(0, 0, red);
  none.flush();
  none.setUseBackBuffer(false);
  EXPECT_EQ(xplColor(0, 0, 0), none.getPixel(0, 0));
}

TEST_F(WindowOperations, KnowTheirPlaceOnTheScreen) {
  TestWindow native(50, 20, 30, 40);
  xplWindow placed(native.handle());
  EXPECT_EQ(30, placed.getLeft());
  EXPECT_EQ(40, placed.getTop());
  EXPECT_EQ(80, placed.getRight());
  EXPECT_EQ(60, placed.getBottom());
}

TEST_F(WindowOperations, KeptFillingTheWindowStartsAtItsPlaceOnTheScreen) {
  TestWindow native(50, 40, 30, 10);
  xplWindow placed(native.handle());
  placed.fillRect(xplRect<int>(0, 0, 50, 40), white);
  placed.fillWindow(red);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 50; ++x) {
      ASSERT_EQ(x >= 30 && y >= 10 ? red : white, placed.getPixel(x, y)) << x << ", " << y;
    }
  }
}

TEST_F(WindowOperations, StartFromWhatTheWindowShows) {
  window.fillRect(xplRect<int>(0, 0, 40, 30), red);
  window.flush();
  xplWindow second(canvas.native().handle());
  EXPECT_EQ(red, second.getPixel(7, 7));
}
