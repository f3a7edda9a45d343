// What the frame-rate label measures and tells.
#include <string>

#include "harness/privateFolders.h"
#include "windowharness/testWindow.h"
#include "world/frameRateSprite.h"

namespace {

class FrameRateLabel : public PrivateFolders {
 protected:
  // So many updates, each after this many microseconds.
  void run(cFrameRateSprite& label, int frames, int microseconds) {
    for (int i = 0; i < frames; ++i) {
      clock.advance(microseconds);
      label.update(0.04F);
    }
  }
};

TEST_F(FrameRateLabel, BeginsInGreyWithoutANumber) {
  const cFrameRateSprite label;
  EXPECT_STREQ("frameRateLabel", label.name());
  EXPECT_EQ("frame rate (wait...)", label.text());
  EXPECT_EQ(0, label.framesPerSecond());
  EXPECT_FALSE(label.style.useWindowFontSize);
  EXPECT_EQ(18, label.style.fontSize);
  EXPECT_FALSE(label.style.useWindowTextColor);
  EXPECT_EQ(xplColor(128, 128, 128), label.style.textColor);
  EXPECT_TRUE(label.style.useWindowFont);
}

TEST_F(FrameRateLabel, With50FramesASecondChangesEvery2Seconds) {
  cFrameRateSprite label;
  run(label, 99, 20000);
  EXPECT_EQ("frame rate (wait...)", label.text());
  run(label, 1, 20000);
  EXPECT_EQ("frame rate:\n50 frames/sec\n20 msec per frame\nMay 21 2016 20:25:13", label.text());
  EXPECT_EQ(50, label.framesPerSecond());
  run(label, 99, 40000);
  EXPECT_EQ(50, label.framesPerSecond());
  run(label, 1, 40000);
  EXPECT_EQ(25, label.framesPerSecond());
}

TEST_F(FrameRateLabel, KeptStampIsThatOfTheLabelNotOfTheBuild) {
  cFrameRateSprite label;
  run(label, 100, 20000);
  EXPECT_TRUE(label.text().ends_with("May 21 2016 20:25:13"));
}

TEST_F(FrameRateLabel, CutsTheRateAndTellsTheMillisecondsOfTheCutRate) {
  cFrameRateSprite label;
  run(label, 100, 13300);  // 75.19 frames a second
  EXPECT_EQ("frame rate:\n75 frames/sec\n13.3333 msec per frame\nMay 21 2016 20:25:13", label.text());
}

TEST_F(FrameRateLabel, EndsWithTheExtraText) {
  cFrameRateSprite label;
  label.setExtraText("\n3 monitors");
  EXPECT_EQ("frame rate (wait...)", label.text());
  run(label, 100, 20000);
  EXPECT_EQ("frame rate:\n50 frames/sec\n20 msec per frame\nMay 21 2016 20:25:13\n3 monitors", label.text());
}

TEST_F(FrameRateLabel, KeepsItsTextWhileTheClockStandsStillOrGoesBack) {
  cFrameRateSprite label;
  run(label, 100, 0);
  EXPECT_EQ("frame rate (wait...)", label.text());
  run(label, 100, -10000);
  EXPECT_EQ("frame rate (wait...)", label.text());
  run(label, 100, 20000);
  EXPECT_EQ(50, label.framesPerSecond()) << "and measures again afterwards";
  run(label, 100, 0);
  EXPECT_EQ(50, label.framesPerSecond());
}

TEST_F(FrameRateLabel, TellsThatAFrameTakesWithoutEndBelowOneASecond) {
  cFrameRateSprite label;
  run(label, 100, 1'500'000);
  EXPECT_EQ("frame rate:\n0 frames/sec\ninf msec per frame\nMay 21 2016 20:25:13", label.text());
}

TEST_F(FrameRateLabel, TellsTheShortestTimeThatTheClockKnows) {
  cFrameRateSprite label;
  run(label, 99, 0);
  run(label, 1, 1);
  EXPECT_EQ(100'000'000, label.framesPerSecond());
}

TEST_F(FrameRateLabel, MovesAsAParticle) {
  cFrameRateSprite label;
  label.update(0.5F);
  EXPECT_FLOAT_EQ(0.0F, label.x);
  label.speedX = 8.0F;
  label.update(0.5F);
  EXPECT_FLOAT_EQ(4.0F, label.x);
}

TEST_F(FrameRateLabel, IsDrawnInGrey) {
  TestWindow native(300, 100);
  xplWindow window(native.handle());
  window.fillRect(xplRect<int>(0, 0, 300, 100), xplColor(0, 0, 0));
  window.nonAntialiased.push(1);
  cFrameRateSprite label;
  label.setRenderWindow(&window);
  label.y = 40.0F;
  label.draw();
  int grey = 0;
  int other = 0;
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 300; ++x) {
      const xplColor color = window.getPixel(x, y);
      grey += color == xplColor(128, 128, 128) ? 1 : 0;
      other += color != xplColor(128, 128, 128) && color != xplColor(0, 0, 0) ? 1 : 0;
      if (y < 40) {
        ASSERT_EQ(xplColor(0, 0, 0), color);
      }
    }
  }
  EXPECT_GT(grey, 200);
  EXPECT_EQ(0, other);
}

}  // namespace
