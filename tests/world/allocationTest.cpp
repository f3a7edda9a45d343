// A frame takes no memory: every allocation of the program is counted.
#include <string>

#include "harness/allocationCount.h"
#include "oldTvFixture.h"
#include "worldFixture.h"

namespace {

TEST_F(World, TakesNoMemoryForAFrame) {
  for (const int background : {0, 2, 3}) {
    xplUserSettings().set("background", background);
    leaveOnlyStars();
    const auto world = makeWorld(160, 120);
    world->initializeWorld();
    world->update(0.04F);
    world->draw();
    const long before = allocationCount();
    for (int i = 0; i < 100; ++i) {
      world->update(0.04F);
      world->draw();
    }
    EXPECT_EQ(before, allocationCount()) << "background " << background;
  }
}

TEST_F(OldTv, TakesNoMemoryForAFrame) {
  makeEffect(160, 120);
  effect->draw();  // shows the whole desktop, for which a list of parts may grow once
  const long before = allocationCount();
  EXPECT_EQ(25, framesToTheEnd());
  EXPECT_EQ(before, allocationCount());
}

// All the texts of a sky, and which message its stars are on.
struct Texts {
  std::string label;
  std::string quote;
  std::string bottomLine;
  const void* transition;

  explicit Texts(const TnoctisWorld& world)
      : label(world.moonInfoLabel().text()),
        quote(world.quotesLabel().text()),
        bottomLine(world.bottomLine().text()),
        transition(world.msgStarDirector().transition()) {}
  bool operator==(const Texts&) const = default;
};

TEST_F(World, OfEverythingTakesNoMemoryForAFrameInWhichNoTextChanges) {
  xplUserSettings().set("showQuotes_Wisdom", true);
  xplRandom::seed(5);
  const auto world = makeWorld(640, 480);
  world->initializeWorld();
  world->update(0.04F);
  world->draw();
  int quietFrames = 0;
  int quotes = 0;
  for (int i = 0; i < 60 * 25; ++i) {
    const Texts before(*world);
    const long allocated = allocationCount();
    world->update(0.04F);
    if (i % 10 == 0) {
      world->draw();
    }
    const long taken = allocationCount() - allocated;
    const Texts after(*world);
    quotes += before.quote != after.quote ? 1 : 0;
    if (before == after) {
      ++quietFrames;
      ASSERT_EQ(0, taken) << "frame " << i;
    }
  }
  EXPECT_GT(quietFrames, 700);
  EXPECT_GT(quotes, 1);
}

TEST_F(World, IsBuiltOfMemoryThatIsCounted) {
  const long before = allocationCount();
  const auto world = makeWorld(160, 120);
  EXPECT_GE(allocationCount() - before, static_cast<long>(TnoctisWorld::starCount));
}

}  // namespace
