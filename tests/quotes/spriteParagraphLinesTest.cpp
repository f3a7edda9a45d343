// How a paragraph is made, measured and drawn.
#include "quotes/paragraphFixture.h"

namespace {

TEST_F(DimmingParagraph, HasALineForEachText) {
  paragraph.setParagraph({"one", "two", "three"});
  EXPECT_EQ("one", paragraph.text());
  EXPECT_EQ("two", lineAt(1).text());
  EXPECT_EQ("three", lineAt(2).text());
  EXPECT_EQ(nullptr, lineAt(2).next());
  EXPECT_STREQ("cSpriteParagraphDimming", lineAt(1).name());
  EXPECT_EQ(&window, lineAt(2).renderWindow());
}

TEST_F(DimmingParagraph, GivesItsLinesItsStyleAtFullBrightness) {
  paragraph.setParagraph({"one"});
  paragraph.style.fontSize = 20;
  paragraph.start(0, 0, 0);
  run(10);
  ASSERT_NE(xplColor(200, 100, 50), paragraph.style.textColor);
  paragraph.setParagraph({"one", "two"});
  EXPECT_EQ(20, lineAt(1).style.fontSize);
  EXPECT_FALSE(lineAt(1).style.useWindowTextColor);
  EXPECT_EQ(xplColor(200, 100, 50), lineAt(1).fullColor());
}

TEST_F(DimmingParagraph, ANewOneReplacesAllLines) {
  paragraph.setParagraph({"one", "two", "three"});
  paragraph.setParagraph({"four", "five"});
  EXPECT_EQ("four", paragraph.text());
  EXPECT_EQ("five", lineAt(1).text());
  EXPECT_EQ(nullptr, lineAt(1).next());
}

TEST_F(DimmingParagraph, WithoutTextsItKeepsItsFirstLineAlone) {
  paragraph.setParagraph({"one", "two"});
  paragraph.setParagraph({});
  EXPECT_EQ("one", paragraph.text());
  EXPECT_EQ(nullptr, paragraph.next());
}

TEST_F(DimmingParagraph, IsAsWideAsItsWidestLineAndAsHighAsAllTogether) {
  paragraph.x = 30.0F;
  paragraph.y = 40.0F;
  paragraph.setParagraph({"short", "a much longer line", "mid line"});
  const auto& rect = paragraph.paragraphRect();
  EXPECT_FLOAT_EQ(30.0F, rect.left);
  EXPECT_FLOAT_EQ(40.0F, rect.top);
  EXPECT_GT(lineAt(1).width, lineAt(2).width);
  EXPECT_FLOAT_EQ(lineAt(1).width, rect.width);
  EXPECT_FLOAT_EQ(paragraph.height + lineAt(1).height + lineAt(2).height, rect.height);
  EXPECT_FLOAT_EQ(lineAt(1).height + lineAt(2).height, lineAt(1).paragraphRect().height);
}

TEST_F(DimmingParagraph, KeptHeightLeavesTheGapsBetweenTheLinesOut) {
  paragraph.setParagraph({"one", "two"});
  paragraph.start(10.0F, 20.0F, 0);
  run(51);
  const double bottom = lineAt(1).getBottom();
  EXPECT_DOUBLE_EQ(20.0 + static_cast<double>(paragraph.paragraphRect().height) + 2.0, bottom);
}

TEST_F(DimmingParagraph, KeptVeryDimLinesAreNotDrawn) {
  paragraph.setParagraph({"HHH"});
  paragraph.start(10.0F, 20.0F, 0);
  run(10);
  ASSERT_EQ(20, paragraph.brightness());
  paragraph.draw();
  EXPECT_EQ(0, drawnPixels());
  run(1);
  ASSERT_EQ(22, paragraph.brightness());
  paragraph.draw();
  EXPECT_GT(drawnPixels(), 0);
}

TEST_F(DimmingParagraph, DrawsAllLinesThatAreBrightEnough) {
  paragraph.setParagraph({"HHH", "HHH"});
  paragraph.start(10.0F, 20.0F, 0);
  run(51);
  const int secondTop = static_cast<int>(lineAt(1).y);
  paragraph.draw();
  EXPECT_GT(drawnPixels(0, secondTop), 0);
  EXPECT_EQ(0, drawnPixels(secondTop, 480));
  run(20);
  clear();
  paragraph.draw();
  EXPECT_GT(drawnPixels(0, secondTop), 0);
  EXPECT_GT(drawnPixels(secondTop, 480), 0);
  EXPECT_EQ(0, drawnPixels(0, 20)) << "nothing above the paragraph";
}

TEST_F(DimmingParagraph, OfAHundredThousandLinesNeedsNoStack) {
  paragraph.setRenderWindow(nullptr);
  paragraph.setParagraph(std::vector<std::string>(100'000));
  paragraph.start(0, 0, 0);
  paragraph.update(frame);
  paragraph.calcSize();
  paragraph.draw();
  EXPECT_FALSE(paragraph.isDone());
  paragraph.setParagraph({"one"});
  EXPECT_EQ(nullptr, paragraph.next());
}

}  // namespace
