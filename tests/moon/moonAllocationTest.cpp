// A frame of the moon and its label takes no memory unless the text changes: every allocation is counted.
#include "harness/allocationCount.h"
#include "moon/firstMoonFixture.h"
#include "moon/moonInfoSprite.h"
#include "windowharness/testWindow.h"

namespace {

class MoonAllocation : public FirstMoonTest {
 protected:
  void SetUp() override {
    FirstMoonTest::SetUp();
    label.fillFromMoonInfo(cMoonInfo(momentOfTheFirstMoon));  // no alert: both lists take turns
    label.setRenderWindow(&window);
    moon = paintedMoon(50, {200, 100, 50});
    moon->illuminate();
    moon->setRenderWindow(&window);
  }

  void frame() {
    moon->update(0.04F);
    label.update(0.04F);
    if (!label.sizeIsValid()) {
      label.calcSize();
    }
    moon->draw();
    label.draw();
  }

  TestWindow native{200, 150};
  xplWindow window{native.handle()};
  std::unique_ptr<cMoonSprite> moon;
  cMoonInfoSprite label;
};

TEST_F(MoonAllocation, IsNoneInAFrameInWhichNoTextChanges) {
  for (int i = 0; i < 400; ++i) {
    frame();  // all lines have had their turns
  }
  int quietFrames = 0;
  for (int i = 0; i < 400; ++i) {
    const std::string text = label.text();
    const long before = allocationCount();
    frame();
    if (label.text() == text) {
      ++quietFrames;
      ASSERT_EQ(before, allocationCount()) << "frame " << i;
    }
  }
  EXPECT_GT(quietFrames, 150);
}

TEST_F(MoonAllocation, IsNoneForTypingIntoMemoryOfEarlierTurns) {
  for (int i = 0; i < 400; ++i) {
    label.update(0.04F);
  }
  const long before = allocationCount();
  for (int i = 0; i < 400; ++i) {
    label.update(0.04F);
  }
  EXPECT_EQ(before, allocationCount());
}

TEST_F(MoonAllocation, IsCounted) {
  const long before = allocationCount();
  const std::string text(1000, 'x');
  EXPECT_GT(allocationCount(), before) << text.size();
}

}  // namespace
