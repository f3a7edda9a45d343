// When backgrounds prepare themselves, and when they draw nothing.
#include <string>
#include <vector>

#include "skyFixture.h"

namespace {

TEST_F(SkyBackgrounds, PrepareInATimedBlockOnTheFirstDraw) {
  drawBackground(3, 50, 50);
  background->draw();
  EXPECT_EQ(1, countEntries("Entering: cSkyBackground_ImageTiled.initialize()"));
  EXPECT_EQ(1, countEntries("Exiting: cSkyBackground_ImageTiled.initialize(). Duration:0.000 sec"));
  EXPECT_EQ(1, countEntries("Entering: cSkyBackgroundFactory.create()"));
  EXPECT_EQ(1, countEntries("Exiting: cSkyBackgroundFactory.create(). Duration:0.000 sec"));
}

TEST_F(SkyBackgrounds, AreNotPreparedBeforeTheirFirstDraw) {
  xplUserSettings().set("background", 2);
  makeWindow(20, 20);
  background = cSkyBackgroundFactory::create();
  background->setRenderWindow(window.get());
  background->update(0.04F);
  EXPECT_EQ(0, countEntries("Entering: cSkyBackground_ImageStretched.initialize()"));
  background->draw();
  EXPECT_EQ(1, countEntries("Entering: cSkyBackground_ImageStretched.initialize()"));
  EXPECT_STREQ("cSkyBackground", background->name());
}

TEST_F(SkyBackgrounds, WithoutAWindowWaitForOne) {
  cSkyBackground_ImageTiled tiles;
  tiles.draw();
  EXPECT_EQ(0, countEntries("Entering: cSkyBackground_ImageTiled.initialize()"));
  makeWindow(20, 20);
  tiles.setRenderWindow(window.get());
  tiles.draw();
  EXPECT_EQ(1, countEntries("Entering: cSkyBackground_ImageTiled.initialize()"));
  expectTiles(1, 1);
}

TEST_F(SkyBackgrounds, PicturesThatAreDisabledStayUndrawn) {
  for (const int value : {2, 3}) {
    drawBackground(value, 20, 20);
    window->fillRect(xplRect<int>(0, 0, 20, 20), {1, 2, 3});
    background->disable();
    background->draw();
    expectAll({1, 2, 3});
  }
}

TEST_F(SkyBackgrounds, KeptADisabledColourStillFillsTheWindowWhenAskedDirectly) {
  drawBackground(1, 20, 20);
  window->fillRect(xplRect<int>(0, 0, 20, 20), {1, 2, 3});
  background->disable();
  background->draw();
  expectAll({0, 0, 41});
}

TEST_F(SkyBackgrounds, KeptHiddenOnesStillDrawWhenAskedDirectly) {
  drawBackground(3, 20, 20);
  window->fillRect(xplRect<int>(0, 0, 20, 20), {1, 2, 3});
  background->hide();
  background->draw();
  expectTiles(1, 1);
}

TEST_F(SkyBackgrounds, APictureThatCannotBeLoadedLeavesTheWindowAlone) {
  makeWindow(20, 20);
  constexpr sPictureResource missing{9999, "missing.bmp"};
  cSkyBackground_ImageStretched stretched(missing);
  cSkyBackground_ImageTiled tiled(missing);
  for (cSkyBackground* sky : std::vector<cSkyBackground*>{&stretched, &tiled}) {
    window->fillRect(xplRect<int>(0, 0, 20, 20), {1, 2, 3});
    sky->setRenderWindow(window.get());
    sky->draw();
    sky->draw();
    expectAll({1, 2, 3});
  }
  int errors = 0;
  for (const std::string& entry : logEntries()) {
    errors += entry.starts_with("#4653b: image.initWithResource_impl failed:9999") ? 1 : 0;
    EXPECT_FALSE(entry.starts_with("skyBackground resizedTo")) << entry;
  }
  EXPECT_EQ(2, errors) << "each tries once, on its first draw";
}

}  // namespace
