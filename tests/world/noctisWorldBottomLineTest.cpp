// Where the world puts its bottom line, and how large its text is.
#include "worldFixture.h"

TEST_F(World, PutsTheBottomLineRightOfTheWindowAndDisablesIt) {
  const auto world = makeWorld(1920, 1080);
  world->initializeWorld();
  const auto& line = world->bottomLine();
  EXPECT_FLOAT_EQ(1921.0F, line.x);
  EXPECT_FLOAT_EQ(0.95F * 1080.0F, line.y);
  EXPECT_EQ(13, line.style.fontSize);
  EXPECT_FALSE(line.style.useWindowFontSize);
  EXPECT_FLOAT_EQ(-54.0F, line.speedX);
  EXPECT_EQ(1, line.disabledCount());
  EXPECT_EQ(1, countEntries("bottomLine default height:10"));
}

TEST_F(World, KeptTheBottomLineIsAsManyPointsHighAsAnEightiethOfTheWindowHasPixels) {
  const auto heightOfTextIn = [this](int windowHeight) {
    const auto world = makeWorld(100, windowHeight);
    world->initializeWorld();
    return world->bottomLine().style.fontSize;
  };
  EXPECT_EQ(9, heightOfTextIn(720));
  EXPECT_EQ(9, heightOfTextIn(799));
  EXPECT_EQ(10, heightOfTextIn(800));
  EXPECT_EQ(27, heightOfTextIn(2160));
}

TEST_F(World, KeptTheWindowsPlaceOnTheScreenDoesNotMoveWhatIsInIt) {
  const auto world = makeWorld(200, 100, 50, 40);
  EXPECT_EQ(0, world->windowRect().left);
  EXPECT_EQ(0, world->windowRect().top);
  EXPECT_EQ(200, world->windowRect().getRight());
  EXPECT_EQ(100, world->windowRect().getBottom());
  world->initializeWorld();
  EXPECT_FLOAT_EQ(201.0F, world->bottomLine().x);
}

TEST_F(World, InALowWindowGivesTheBottomLineTheSmallestText) {
  for (const int height : {719, 639, 100, 1}) {
    const auto world = makeWorld(640, height);
    world->initializeWorld();
    EXPECT_EQ(8, world->bottomLine().style.fontSize) << height;
  }
}

TEST_F(World, KeepsTheBottomLine22PixelsAboveTheEdgeOfALowWindow) {
  const auto world = makeWorld(640, 300);
  world->initializeWorld();
  EXPECT_FLOAT_EQ(278.0F, world->bottomLine().y);
}
