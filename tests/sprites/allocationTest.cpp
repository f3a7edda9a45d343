// A text that stays the same is measured, moved and drawn without memory: every allocation of the program is
// counted.
#include "harness/allocationCount.h"
#include "spriteFixture.h"
#include "sprites/spriteDirector.h"
#include "sprites/spriteText.h"

namespace {

class TextSpriteMemory : public SpriteCanvas {
 protected:
  TextSpriteMemory() {
    text.setText("a line of text that is longer than any short string, and\nanother one below");
    text.setRenderWindow(&window);
    text.x = 5.0F;
    text.speedX = -54.0F;
    director.addSprite(text);
  }
  // What a hundred frames take after the first one, which fills the caches of fonts and glyphs.
  long takenByFrames() {
    runFrame(0);
    const long before = allocationCount();
    for (int i = 1; i <= 100; ++i) {
      runFrame(i);
    }
    return allocationCount() - before;
  }

  TorvSpriteText text{"t"};
  TorvSpriteDirector director;

 private:
  // Each frame has another colour, as while a text fades; the glyphs stay the same.
  void runFrame(int number) {
    text.style.textColor = xplColor(static_cast<std::uint8_t>(100 + number), 100, 100);
    director.updateAll(0.01F);
    text.calcSize();
    director.drawAll();
  }
};

TEST_F(TextSpriteMemory, IsNotTakenInTheWindowsStyle) {
  EXPECT_EQ(0, takenByFrames());
  EXPECT_GE(firstDrawnColumn(), 0);
}

TEST_F(TextSpriteMemory, IsNotTakenInAStyleOfItsOwn) {
  text.style.useWindowTextColor = false;
  text.style.useWindowFont = false;
  text.style.fontName = "Courier New";
  text.style.useWindowFontSize = false;
  text.style.fontSize = 8;
  text.style.alignDefault = false;
  for (const int alignment : {1, xplTextAttributes::alignmentRight, xplTextAttributes::alignmentCentered}) {
    text.style.alignment = alignment;
    EXPECT_EQ(0, takenByFrames()) << alignment;
  }
}

TEST_F(TextSpriteMemory, IsTakenForANewTextAndCounted) {
  takenByFrames();
  const long before = allocationCount();
  text.setText("a text that is new, and longer than the one that was there before it, and so takes memory");
  EXPECT_GT(allocationCount(), before);
}

}  // namespace
