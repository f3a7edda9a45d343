// How a line fades in, holds and fades out.
#include <cmath>
#include <limits>

#include "quotes/quotesFixture.h"
#include "quotes/spriteTextDimming.h"

namespace {

constexpr float frame = 0.04F;

class DimmingLine : public QuotesOnAWindow {
 protected:
  DimmingLine() {
    TorvTextStyle style;
    style.useWindowTextColor = false;
    style.textColor = xplColor(200, 100, 50);
    line.setStyle(style);
    line.setRenderWindow(&window);
    line.setText("0123456789");
  }
  void run(int frames) {
    for (int i = 0; i < frames; ++i) {
      line.update(frame);
    }
  }
  // Frames until the line leaves the state.
  int framesIn(int state) {
    int frames = 0;
    for (; line.state() == state && frames < 100000; ++frames) {
      line.update(frame);
    }
    return frames;
  }
  cSpriteTextDimming line{"line"};
};

TEST_F(DimmingLine, WaitsUntilItIsStarted) {
  EXPECT_EQ(0, line.state());
  run(100);
  EXPECT_EQ(0, line.state());
  EXPECT_EQ(0, line.brightness());
}

TEST_F(DimmingLine, StartsDarkAtThePlace) {
  line.start(30.5F, 40.25F, 0);
  EXPECT_EQ(1, line.state());
  EXPECT_EQ(0, line.brightness());
  EXPECT_EQ(0, line.timer());
  EXPECT_FLOAT_EQ(30.5F, line.x);
  EXPECT_FLOAT_EQ(40.25F, line.y);
  EXPECT_GT(line.width, 20.0F);
  EXPECT_TRUE(line.sizeIsValid());
}

TEST_F(DimmingLine, HoldsFourSecondsAndEightyMillisecondsForEachCharacter) {
  line.start(0, 0, 0);
  EXPECT_EQ(4800, line.holdTime());
  line.setText("");
  line.start(0, 0, 0);
  EXPECT_EQ(4000, line.holdTime());
}

TEST_F(DimmingLine, HoldsAtLeastForTheMinimum) {
  line.start(0, 0, 6000);
  EXPECT_EQ(6000, line.holdTime());
  line.start(0, 0, 4799);
  EXPECT_EQ(4800, line.holdTime());
}

TEST_F(DimmingLine, HoldTimeOfAHugeTextFits) {
  line.setRenderWindow(nullptr);
  line.setText(std::string(30'000'000, 'x'));
  line.start(0, 0, 0);
  EXPECT_EQ(std::numeric_limits<int>::max(), line.holdTime());
}

TEST_F(DimmingLine, FadesInWithinFiftyOneFrames) {
  line.start(0, 0, 0);
  line.update(frame);
  EXPECT_EQ(2, line.brightness());
  run(49);
  EXPECT_EQ(100, line.brightness());
  EXPECT_EQ(1, line.state());
  line.update(frame);
  EXPECT_EQ(2, line.state());
  EXPECT_EQ(0, line.timer());
}

TEST_F(DimmingLine, IsDrawnInItsColourTimesTheBrightnessOfTheFrameBefore) {
  line.start(0, 0, 0);
  line.update(frame);
  EXPECT_EQ(xplColor(0, 0, 0), line.style.textColor);
  line.update(frame);
  EXPECT_EQ(xplColor(4, 2, 1), line.style.textColor);
  run(24);
  EXPECT_EQ(xplColor(100, 50, 25), line.style.textColor);
  run(25);
  EXPECT_EQ(xplColor(200, 100, 50), line.style.textColor);
  EXPECT_EQ(xplColor(200, 100, 50), line.fullColor());
}

TEST_F(DimmingLine, HoldsUntilTheTimeIsPast) {
  line.start(0, 0, 0);
  run(51);
  run(120);
  EXPECT_EQ(4800, line.timer());
  EXPECT_EQ(2, line.state()) << "the whole time has passed, not more";
  line.update(frame);
  EXPECT_EQ(3, line.state());
}

TEST_F(DimmingLine, FadesOutWithinTenFrames) {
  line.start(0, 0, 0);
  run(51);
  line.fadeOut();
  EXPECT_EQ(3, line.state());
  line.update(frame);
  EXPECT_EQ(88, line.brightness());
  run(8);
  EXPECT_EQ(0, line.brightness());
  EXPECT_EQ(3, line.state());
  line.update(frame);
  EXPECT_EQ(4, line.state());
  EXPECT_EQ(xplColor(0, 0, 0), line.style.textColor);
}

TEST_F(DimmingLine, FadesOutFromWhereverItIs) {
  line.start(0, 0, 0);
  run(10);
  line.fadeOut();
  EXPECT_EQ(3, framesIn(cSpriteTextDimming::fadingOut)) << "20, 8, 0";
  EXPECT_EQ(4, line.state());
}

TEST_F(DimmingLine, KeptFadesCountFramesAndTheHoldCountsTime) {
  line.start(0, 0, 0);
  int frames = 0;
  for (; line.state() == cSpriteTextDimming::fadingIn; ++frames) {
    line.update(1.0F);
  }
  EXPECT_EQ(51, frames);
  for (frames = 0; line.state() == cSpriteTextDimming::holding; ++frames) {
    line.update(1.0F);
  }
  EXPECT_EQ(5, frames) << "4.8 s";
}

TEST_F(DimmingLine, CountsWholeMilliseconds) {
  line.start(0, 0, 0);
  line.update(0.0019F);
  EXPECT_EQ(1, line.timer());
  line.update(0.04F);
  EXPECT_EQ(41, line.timer());
}

TEST_F(DimmingLine, MovesByItsSpeed) {
  line.start(10.0F, 0, 0);
  line.speedX = 50.0F;
  line.update(0.5F);
  EXPECT_FLOAT_EQ(35.0F, line.x);
  line.update(0.0F);
  EXPECT_FLOAT_EQ(35.0F, line.x);
}

TEST_F(DimmingLine, ATimeThatIsNoNumberMovesNothing) {
  line.start(10.0F, 0, 0);
  line.speedX = 50.0F;
  line.update(std::nanf(""));
  EXPECT_FLOAT_EQ(10.0F, line.x);
  EXPECT_EQ(0, line.timer());
  EXPECT_EQ(2, line.brightness());
}

TEST_F(DimmingLine, CanBeStartedAgain) {
  line.start(0, 0, 0);
  run(51);
  line.fadeOut();
  run(10);
  ASSERT_EQ(4, line.state());
  line.start(5.0F, 6.0F, 9000);
  EXPECT_EQ(1, line.state());
  EXPECT_EQ(0, line.brightness());
  EXPECT_EQ(9000, line.holdTime());
}

}  // namespace
