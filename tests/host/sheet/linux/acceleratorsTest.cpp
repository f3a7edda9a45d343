// Tests the choice of accelerators.
#include <gtest/gtest.h>

#include "host/sheet/linux/accelerators.h"

namespace {

TEST(AcceleratorChoice, TakesTheFirstLetterOfAWordThatIsFree) {
  Accelerators accelerators("S");
  EXPECT_EQ(accelerators.mark("Ocean waves"), "&Ocean waves");
  EXPECT_EQ(accelerators.mark("Old waves"), "Old &waves");
  EXPECT_EQ(accelerators.mark("Sleep"), "S&leep");
}

TEST(AcceleratorChoice, TakesNoLetterTwiceWhateverItsCase) {
  Accelerators accelerators("ab");
  EXPECT_EQ(accelerators.mark("ABc"), "AB&c");
  EXPECT_EQ(accelerators.mark("cab C"), "cab C");
}

TEST(AcceleratorChoice, SkipsWhatIsNoLetter) {
  Accelerators accelerators("");
  EXPECT_EQ(accelerators.mark("< Previous"), "< &Previous");
  EXPECT_EQ(accelerators.mark("2 > 1"), "2 > 1");
  EXPECT_EQ(accelerators.mark(""), "");
}

TEST(AcceleratorChoice, ShowsAnAmpersandAsItStands) {
  Accelerators accelerators("");
  EXPECT_EQ(accelerators.mark("& more"), "&& &more");
  EXPECT_EQ(withoutAccelerator("a & b"), "a && b");
}

}  // namespace
