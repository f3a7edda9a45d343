// The points of ten messages at three sizes of the window: the same wherever the program runs.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "accentedText.h"
#include "world/messageProjection.h"
#include "worldFixture.h"

namespace {

const std::vector<std::string>& messages() {
  static const std::vector<std::string> all = {
      "L",
      "Moonlight",
      "Good night\r\nsleep well",
      "0123456789",
      accentedText,
      "The quick brown fox leaps over the moon.",
      "",
      "Lunaria\r\nscreensaver",
      "Your message\r\nhere",
      "& % @ # ? !",
  };
  return all;
}

std::uint64_t hashOf(const std::vector<sTargetPoint>& points) {
  std::uint64_t hash = 0xcbf29ce484222325ULL;
  for (const sTargetPoint& point : points) {
    for (const int value : {point.x, point.y}) {
      hash = (hash ^ static_cast<std::uint32_t>(value)) * 0x100000001b3ULL;
    }
  }
  return hash;
}

struct Row {
  int width;
  std::size_t message;
  std::size_t points;
  std::uint64_t hash;
};

// Made by this test itself, with LUNARIA_PRINT_TARGET_POINTS set, once the formations had been looked at.
const std::vector<Row> rows = {
#include "targetPoints.inc"
};

class TargetPoints : public PrivateFolders {
 protected:
  static std::vector<sTargetPoint> project(std::size_t message, int width) {
    xplRandom::seed(static_cast<std::uint32_t>(message));
    std::vector<sTargetPoint> points;
    projectMessage(messages()[message], xplRect<int>(0, 0, width, width * 9 / 16), points);
    return points;
  }
};

TEST_F(TargetPoints, OfTenMessagesAreTheSameOnEveryPlatform) {
  if (std::getenv("LUNARIA_PRINT_TARGET_POINTS") != nullptr) {
    for (const int width : {1280, 1920, 3840}) {
      for (std::size_t i = 0; i < messages().size(); ++i) {
        const auto points = project(i, width);
        std::printf("{%d, %zu, %zu, 0x%016llxULL},\n", width, i, points.size(),
                    static_cast<unsigned long long>(hashOf(points)));
      }
    }
    GTEST_SKIP() << "printed only";
  }
  ASSERT_EQ(30U, rows.size());
  for (const Row& row : rows) {
    const auto points = project(row.message, row.width);
    EXPECT_EQ(row.points, points.size()) << row.message << " at " << row.width;
    EXPECT_EQ(row.hash, hashOf(points)) << row.message << " at " << row.width;
  }
}

}  // namespace
