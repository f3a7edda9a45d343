// Tests the collecting and joining of changed parts.
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "host/linux/wayland/changedParts.h"

namespace {

using Edges = std::vector<int>;

std::vector<Edges> listOf(const ChangedParts& changed) {
  std::vector<Edges> list;
  for (const xplEdges& part : changed.parts()) {
    list.push_back({part.left, part.top, part.right, part.bottom});
  }
  return list;
}

TEST(ChangedParts, AreNoneAtFirstAndOnceCleared) {
  ChangedParts changed(1000, 500);
  EXPECT_TRUE(changed.isEmpty());
  changed.add({10, 10, 20, 20});
  EXPECT_FALSE(changed.isEmpty());
  changed.clear();
  EXPECT_TRUE(changed.isEmpty());
  changed.add({12, 20, 18, 30});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{12, 20, 18, 30}}));
}

TEST(ChangedParts, ThatTouchAreJoined) {
  ChangedParts changed(1000, 500);
  changed.add({32, 3, 64, 8});
  changed.add({32, 8, 64, 10});
  changed.add({64, 3, 96, 10});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{32, 3, 96, 10}}));
}

TEST(ChangedParts, AreJoinedWhereLessThanFourHundredPixelsComeInBetween) {
  ChangedParts changed(1000, 500);
  changed.add({0, 0, 20, 20});
  changed.add({39, 0, 59, 20});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 59, 20}}));
  changed.clear();
  changed.add({0, 0, 20, 20});
  changed.add({40, 0, 60, 20});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 20, 20}, {40, 0, 60, 20}}));
}

TEST(ChangedParts, GoToTheNearer) {
  ChangedParts changed(1000, 500);
  changed.add({0, 0, 10, 10});
  changed.add({64, 0, 74, 10});
  changed.add({50, 0, 60, 10});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 10, 10}, {50, 0, 74, 10}}));
}

TEST(ChangedParts, WithinAnotherAddNothing) {
  ChangedParts changed(1000, 500);
  changed.add({0, 0, 100, 100});
  changed.add({50, 50, 60, 60});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 100, 100}}));
}

TEST(ChangedParts, ReachTheEdgesOfASurfaceOfOnePixel) {
  ChangedParts changed(1, 1);
  changed.add({0, 0, 1, 1});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 1, 1}}));
}

TEST(ChangedParts, ThatAreTooManyBecomeTheWhole) {
  constexpr int step = 100;  // far enough from each other
  ChangedParts changed(step * 40, step * 40);
  for (std::size_t i = 0; i < ChangedParts::most; ++i) {
    const int x = static_cast<int>(i % 40) * step;
    const int y = static_cast<int>(i / 40) * step;
    changed.add({x, y, x + 10, y + 10});
  }
  EXPECT_EQ(changed.parts().size(), ChangedParts::most);
  changed.add({3990, 3990, 4000, 4000});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 4000, 4000}}));
  changed.add({5, 5, 6, 6});
  EXPECT_EQ(listOf(changed), (std::vector<Edges>{{0, 0, 4000, 4000}}));
}

TEST(ChangedParts, CoverWhateverWasAdded) {
  ChangedParts changed(640, 400);
  unsigned seed = 7;
  const auto upTo = [&seed](int end) {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<int>((seed >> 8) % static_cast<unsigned>(end));
  };
  std::vector<xplEdges> added;
  for (int i = 0; i < 500; ++i) {
    const int left = upTo(600);
    const int top = upTo(380);
    const int right = left + 1 + upTo(40);
    const int bottom = top + 1 + upTo(20);
    added.push_back({left, top, right, bottom});
    changed.add(added.back());
  }
  for (const xplEdges& part : added) {
    EXPECT_TRUE(std::any_of(changed.parts().begin(), changed.parts().end(), [&](const xplEdges& whole) {
      return whole.left <= part.left && whole.top <= part.top && whole.right >= part.right &&
             whole.bottom >= part.bottom;
    }));
  }
}

}  // namespace
