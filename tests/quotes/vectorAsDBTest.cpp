// How the list draws, removes and counts.
#include <gtest/gtest.h>

#include "harness/privateFolders.h"
#include "quotes/vectorAsDB.h"

namespace {

class IsEven : public xplVectorAsDB_where<int> {
 public:
  bool matches(const int& element) const override { return element % 2 == 0; }
};

class VectorAsDB : public PrivateFolders {
 protected:
  VectorAsDB() {
    for (int i = 1; i <= 7; ++i) {
      list.append(i * 10 + i % 2);
    }
  }
  xplVectorAsDB<int> list;  // 11, 20, 31, 40, 51, 60, 71
};

TEST_F(VectorAsDB, KeepsElementsInTheOrderInWhichTheyCame) {
  ASSERT_EQ(7U, list.size());
  EXPECT_EQ(11, list[0]);
  EXPECT_EQ(71, list[6]);
}

TEST_F(VectorAsDB, ChoosesByOneDrawModuloItsSize) {
  xplRandom::seed(5);
  for (int i = 0; i < 100; ++i) {
    const std::uint32_t state = xplRandom::state();
    const int chosen = *list.getRandom();
    xplRandom::seed(state);
    ASSERT_EQ(list[static_cast<std::size_t>(xplRandom::next() % 7)], chosen);
  }
}

TEST_F(VectorAsDB, KeptElementsBeyondFifteenBitsAreNeverChosen) {
  xplVectorAsDB<int> longList;
  for (int i = 0; i < 40000; ++i) {
    longList.append(i);
  }
  int largest = 0;
  for (int i = 0; i < 200000; ++i) {
    largest = std::max(largest, *longList.getRandom());
  }
  EXPECT_LT(largest, 32768);
  EXPECT_EQ(32768U, xplVectorAsDB<int>::reachable);
  EXPECT_GT(largest, 32000);
}

TEST_F(VectorAsDB, RemovesEveryMatchAndLeavesTheOthersInOrder) {
  list.removeWhere(IsEven());
  ASSERT_EQ(4U, list.size());
  EXPECT_EQ(11, list[0]);
  EXPECT_EQ(31, list[1]);
  EXPECT_EQ(51, list[2]);
  EXPECT_EQ(71, list[3]);
}

TEST_F(VectorAsDB, CountsMatches) {
  EXPECT_EQ(3U, list.countWhere(IsEven()));
  list.removeWhere(IsEven());
  EXPECT_EQ(0U, list.countWhere(IsEven()));
}

TEST_F(VectorAsDB, AnEmptyOneChoosesNothingAndDrawsNothing) {
  xplVectorAsDB<int> empty;
  const std::uint32_t state = xplRandom::state();
  EXPECT_EQ(nullptr, empty.getRandom());
  EXPECT_EQ(state, xplRandom::state());
}

TEST_F(VectorAsDB, KeptEntryOfAnEmptyChoiceNamesItsSourceAndLine) {
  EXPECT_EQ(nullptr, xplVectorAsDB<int>().getRandom());
  EXPECT_EQ(xplAssertionsReport ? 1 : 0,
            countEntries("Assertion failed: false && \"#8762: xplVectorAsDB.getRandom() in empty vector\", "
                         "#8762: xplVectorAsDB.getRandom() in empty vector, source cQuotes, line 41",
                         "ERROR"));
}

}  // namespace
