// How lines are typed over each other and take turns.
#include <limits>

#include <gtest/gtest.h>

#include "moon/rotatingLines.h"

namespace {

void type(RotatingLines& lines, int steps) {
  for (int i = 0; i < steps; ++i) {
    lines.typeOneCharacter();
  }
}

TEST(RotatingLines, BeginEmptyAndAtRest) {
  const RotatingLines lines(4000);
  EXPECT_TRUE(lines.isEmpty());
  EXPECT_FALSE(lines.isTyping());
  EXPECT_EQ("", lines.shown());
  EXPECT_EQ(0U, lines.longest());
}

TEST(RotatingLines, FirstLineIsTypedCharacterByCharacter) {
  RotatingLines lines(4000);
  lines.addLine("abc");
  EXPECT_TRUE(lines.isTyping());
  EXPECT_EQ("", lines.shown());
  type(lines, 1);
  EXPECT_EQ("a", lines.shown());
  type(lines, 2);
  EXPECT_EQ("abc", lines.shown());
  EXPECT_TRUE(lines.isTyping()) << "one more step ends it";
  type(lines, 1);
  EXPECT_EQ("abc", lines.shown());
  EXPECT_FALSE(lines.isTyping());
}

TEST(RotatingLines, LaterLinesDoNotDisturbTheFirst) {
  RotatingLines lines(4000);
  lines.addLine("abc");
  type(lines, 1);
  lines.addLine("xyz");
  type(lines, 3);
  EXPECT_EQ("abc", lines.shown());
  EXPECT_FALSE(lines.isTyping());
}

TEST(RotatingLines, NextLineHasItsTurnOnlyAfterMoreThanTheInterval) {
  RotatingLines lines(4000);
  lines.addLine("abc");
  lines.addLine("xyz");
  type(lines, 4);
  lines.advance(3999);
  lines.advance(1);
  EXPECT_FALSE(lines.isTyping()) << "exactly the interval";
  lines.advance(1);
  EXPECT_TRUE(lines.isTyping());
  type(lines, 4);
  EXPECT_EQ("xyz", lines.shown());
}

TEST(RotatingLines, TimerStartsAnewAtEachTurn) {
  RotatingLines lines(100);
  lines.addLine("a");
  lines.addLine("b");
  type(lines, 2);
  lines.advance(1000);  // ten turns' worth is one turn
  type(lines, 2);
  EXPECT_EQ("b", lines.shown());
  lines.advance(100);
  EXPECT_FALSE(lines.isTyping());
  lines.advance(1);
  type(lines, 2);
  EXPECT_EQ("a", lines.shown()) << "after the last comes the first";
}

TEST(RotatingLines, KeptTailOfALongerLineStandsUntilTypingIsDone) {
  RotatingLines lines(100);
  lines.addLine("abcdef");
  lines.addLine("xy");
  type(lines, 7);
  lines.advance(101);
  type(lines, 1);
  EXPECT_EQ("xbcdef", lines.shown());
  type(lines, 1);
  EXPECT_EQ("xycdef", lines.shown());
  type(lines, 1);
  EXPECT_EQ("xy", lines.shown());
  EXPECT_FALSE(lines.isTyping());
}

TEST(RotatingLines, LongerLineGrowsPastTheShorterOne) {
  RotatingLines lines(100);
  lines.addLine("xy");
  lines.addLine("abcd");
  type(lines, 3);
  lines.advance(101);
  type(lines, 3);
  EXPECT_EQ("abc", lines.shown());
  type(lines, 2);
  EXPECT_EQ("abcd", lines.shown());
}

TEST(RotatingLines, OneLineIsNeverTypedAgain) {
  RotatingLines lines(100);
  lines.addLine("only");
  type(lines, 5);
  for (int i = 0; i < 5; ++i) {
    lines.advance(101);
    EXPECT_FALSE(lines.isTyping());
  }
  EXPECT_EQ("only", lines.shown());
}

TEST(RotatingLines, EmptyLineIsTypedInOneStep) {
  RotatingLines lines(100);
  lines.addLine("");
  EXPECT_FALSE(lines.isEmpty());
  EXPECT_TRUE(lines.isTyping());
  type(lines, 1);
  EXPECT_FALSE(lines.isTyping());
}

TEST(RotatingLines, WithoutLinesNothingHappensInTime) {
  RotatingLines lines(100);
  lines.advance(101);
  lines.advance(101);
  EXPECT_FALSE(lines.isTyping());
  lines.addLine("a");
  type(lines, 2);
  EXPECT_EQ("a", lines.shown());
}

TEST(RotatingLines, TimeThatJumpsIsBounded) {
  RotatingLines lines(100);
  lines.addLine("a");
  lines.addLine("b");
  type(lines, 2);
  lines.advance(100);
  lines.advance(std::numeric_limits<int>::max());
  EXPECT_TRUE(lines.isTyping());
  type(lines, 2);
  EXPECT_EQ("b", lines.shown());
  lines.advance(-100);
  lines.advance(std::numeric_limits<int>::min());
  lines.advance(std::numeric_limits<int>::max());
  EXPECT_FALSE(lines.isTyping()) << "the way back takes as long";
}

TEST(RotatingLines, LongestIsThatOfAllLines) {
  RotatingLines lines(100);
  lines.addLine("ab");
  lines.addLine("abcde");
  lines.addLine("a");
  EXPECT_EQ(5U, lines.longest());
}

}  // namespace
