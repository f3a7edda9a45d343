// How the lines of a paragraph follow one another.
#include "quotes/paragraphFixture.h"

namespace {

using States = std::vector<int>;

TEST_F(DimmingParagraph, EachLineBeginsWhenTheOneAboveIsFullyVisible) {
  paragraph.setParagraph({"one", "two", "three"});
  paragraph.start(10.0F, 20.0F, 6000);
  EXPECT_EQ((States{1, 0, 0}), states());
  run(50);
  EXPECT_EQ((States{1, 0, 0}), states());
  run(1);
  EXPECT_EQ((States{2, 1, 0}), states());
  EXPECT_FLOAT_EQ(10.0F, lineAt(1).x);
  EXPECT_FLOAT_EQ(20.0F + paragraph.height + 2.0F, lineAt(1).y);
  EXPECT_EQ(0, lineAt(1).brightness());
  EXPECT_EQ(6000, lineAt(1).holdTime()) << "at least as long as the line above";
  run(51);
  EXPECT_EQ((States{2, 2, 1}), states());
}

TEST_F(DimmingParagraph, ALongerLineHoldsLonger) {
  paragraph.setParagraph({"one", std::string(50, 'x'), "three"});
  paragraph.start(0, 0, 0);
  run(102);
  EXPECT_EQ(4240, paragraph.holdTime());
  EXPECT_EQ(8000, lineAt(1).holdTime());
  EXPECT_EQ(8000, lineAt(2).holdTime());
}

TEST_F(DimmingParagraph, EachLineFadesOutWhenTheOneAboveHas) {
  paragraph.setParagraph({"one", "two", "three"});
  paragraph.start(0, 0, 7000);
  run(51 + 176);  // the hold is timed: more than 7000 ms
  EXPECT_EQ((States{3, 2, 2}), states());
  run(9);
  EXPECT_EQ((States{3, 2, 2}), states());
  run(1);
  EXPECT_EQ((States{4, 3, 2}), states());
  EXPECT_FALSE(paragraph.isDone());
  run(10);
  EXPECT_EQ((States{4, 4, 3}), states());
  run(10);
  EXPECT_EQ((States{4, 4, 4}), states());
  EXPECT_TRUE(paragraph.isDone());
}

// The line above may be gone by the time a line is fully visible: it still starts the one below it first.
TEST_F(DimmingParagraph, ALineThatIsToldToFadeInItsFirstFullFrameStartsTheNextAllTheSame) {
  paragraph.setParagraph({"one", "two", "three"});
  paragraph.start(0, 0, 0);
  run(51);
  paragraph.fadeOut();
  run(10);
  ASSERT_EQ((States{4, 1, 0}), states());
  run(41);
  EXPECT_EQ((States{4, 3, 1}), states());
  for (int i = 0; i < 2000 && !paragraph.isDone(); ++i) {
    paragraph.update(frame);
  }
  EXPECT_TRUE(paragraph.isDone());
}

TEST_F(DimmingParagraph, AnEmptyLineTakesItsTurnToo) {
  paragraph.setParagraph({"", "two"});
  paragraph.start(10.0F, 20.0F, 0);
  run(51);
  EXPECT_EQ((States{2, 1}), states());
  EXPECT_FLOAT_EQ(22.0F, lineAt(1).y);
}

}  // namespace
