// Tests that one full run at a time has a display.
#include <filesystem>
#include <optional>

#include "harness/privateFolders.h"
#include "host/linux/onlyFullRun.h"

namespace {

class OnlyFullRunOfDisplay : public PrivateFolders {};

TEST_F(OnlyFullRunOfDisplay, IsTheFirstOne) {
  const OnlyFullRun first(":0");
  const OnlyFullRun second(":0");
  EXPECT_TRUE(first.isOurs());
  EXPECT_FALSE(second.isOurs());
}

TEST_F(OnlyFullRunOfDisplay, IsTheNextOneOnceTheFirstHasEnded) {
  std::optional<OnlyFullRun> first(":0");
  first.reset();
  EXPECT_TRUE(OnlyFullRun(":0").isOurs());
}

TEST_F(OnlyFullRunOfDisplay, IsStillTheFirstOneAfterASecondGaveWay) {
  const OnlyFullRun first(":0");
  EXPECT_FALSE(OnlyFullRun(":0").isOurs());
  EXPECT_FALSE(OnlyFullRun(":0").isOurs());
}

TEST_F(OnlyFullRunOfDisplay, IsOneForEachDisplay) {
  const OnlyFullRun first(":0");
  EXPECT_TRUE(OnlyFullRun(":1").isOurs());
  EXPECT_TRUE(OnlyFullRun("wayland-0").isOurs());
}

TEST_F(OnlyFullRunOfDisplay, IsOneForAllScreensOfADisplay) {
  const OnlyFullRun first(":0");
  EXPECT_FALSE(OnlyFullRun(":0.0").isOurs());
  const OnlyFullRun onAnotherHost("host.domain:0");
  EXPECT_FALSE(OnlyFullRun("host.domain:0.1").isOurs());
}

TEST_F(OnlyFullRunOfDisplay, LeavesNoFileBehind) {
  const std::string path = OnlyFullRun::pathFor("wayland-1");
  {
    const OnlyFullRun first("wayland-1");
    EXPECT_TRUE(std::filesystem::exists(path));
  }
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(OnlyFullRunOfDisplay, HasItsFileInTheTemporaryFolderAlsoForThePathOfASocket) {
  const OnlyFullRun first("/run/user/1000/wayland-1");
  EXPECT_TRUE(first.isOurs());
  EXPECT_EQ(std::filesystem::path(OnlyFullRun::pathFor("/run/user/1000/wayland-1")).parent_path(),
            std::filesystem::path(OnlyFullRun::pathFor(":0")).parent_path());
  EXPECT_FALSE(OnlyFullRun("/run/user/1000/wayland-1").isOurs());
}

TEST_F(OnlyFullRunOfDisplay, IsEveryOneWhereNoFileCanBeMade) {
  std::filesystem::create_directory(OnlyFullRun::pathFor(":0"));
  const OnlyFullRun first(":0");
  EXPECT_TRUE(first.isOurs());
  EXPECT_TRUE(OnlyFullRun(":0").isOurs());
}

TEST_F(OnlyFullRunOfDisplay, FollowsNoLink) {
  const std::string elsewhere = root() + "/elsewhere";
  std::filesystem::create_symlink(elsewhere, OnlyFullRun::pathFor(":0"));
  const OnlyFullRun first(":0");
  EXPECT_FALSE(std::filesystem::exists(elsewhere));
}

}  // namespace
