// What the renderer writes, and that it is the same each time.
#include <filesystem>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "render/frameWriter.h"
#include "render/offscreenWindow.h"
#include "render/skyRun.h"

namespace {

class SkyRun : public PrivateFolders {
 protected:
  SkyRun() {
    options.width = 160;
    options.height = 90;
    options.hashes = true;
    options.frames = 3;
    options.time = 1795291200;
  }
  std::vector<std::string> run() {
    std::vector<std::string> lines;
    runSky(
        options, [&](const std::string& line) { lines.push_back(line); }, [](int, int) {});
    return lines;
  }
  std::string path(const char* name) const { return root() + "/" + name; }

  RenderOptions options;
};

TEST_F(SkyRun, PrintsALineForEachFrameAndTheSameOnesAgain) {
  const auto lines = run();
  ASSERT_EQ(3U, lines.size());
  EXPECT_EQ("0 ", lines[0].substr(0, 2));
  EXPECT_EQ(lines, run());
  options.seed = 2;
  EXPECT_NE(lines, run());
}

TEST_F(SkyRun, StartsLaterInTheSameSky) {
  options.frames = 30;
  const auto whole = run();
  options.frames = 1;
  options.atSeconds = 1.0;
  const auto later = run();
  EXPECT_EQ(whole[25].substr(whole[25].find(' ')), later[0].substr(1));
}

TEST_F(SkyRun, UsesTheSettingsFileAndLeavesItAlone) {
  writeFile(path("mine.ini"), "background=1\nshowMoon=no\n");
  options.settingsFile = path("mine.ini");
  options.output = path("sky.raw");
  options.raw = true;
  run();
  const std::string bytes = readFile(path("sky.raw"));
  ASSERT_EQ(3U * 160 * 90 * 4, bytes.size());
  // The middle of the first row: dark blue wherever no star stands.
  int darkBlue = 0;
  for (std::size_t i = 0; i < 160U * 90; ++i) {
    darkBlue += bytes.substr(i * 4, 4) == std::string("\x29\0\0\xff", 4) ? 1 : 0;
  }
  EXPECT_GT(darkBlue, 160 * 90 / 3);
  EXPECT_EQ("background=1\nshowMoon=no\n", readFile(path("mine.ini")));
}

TEST_F(SkyRun, NumbersItsPictures) {
  options.output = path("sky-%03d.png");
  run();
  for (const char* name : {"sky-000.png", "sky-001.png", "sky-002.png"}) {
    EXPECT_EQ("\x89PNG", readFile(path(name)).substr(0, 4)) << name;
  }
}

TEST_F(SkyRun, NamesTheFileThatItCannotReadOrWrite) {
  const auto messageOf = [this] {
    try {
      run();
    } catch (const std::exception& error) {
      return std::string(error.what());
    }
    return std::string("no failure");
  };
  options.settingsFile = path("missing.ini");
  EXPECT_NE(std::string::npos, messageOf().find("missing.ini"));
  options.settingsFile.clear();
  options.output = path("no/such/folder/%d.png");
  EXPECT_NE(std::string::npos, messageOf().find("no/such/folder/0.png"));
}

TEST_F(SkyRun, LeavesNothingBehindInTheTemporaryFolder) {
  run();
  const auto folder =
      std::filesystem::temp_directory_path() / ("lunaria-render-" + std::to_string(processNumber()));
  EXPECT_FALSE(std::filesystem::exists(folder)) << folder;
}

TEST(FrameNames, HoldTheNumberInItsPlace) {
  EXPECT_EQ("sky-00007.png", nameOfFrame("sky-%05d.png", 7));
  EXPECT_EQ("7.png", nameOfFrame("%d.png", 7));
  EXPECT_EQ("sky-1234.png", nameOfFrame("sky-%02d.png", 1234));
  EXPECT_EQ("sky.png", nameOfFrame("sky.png", 7));
}

TEST(FrameHashes, DependOnEveryPixelAndItsPlace) {
  EXPECT_NE(hashOfFrame({1, 2, 3}), hashOfFrame({1, 3, 2}));
  EXPECT_NE(hashOfFrame({1, 2, 3}), hashOfFrame({1, 2, 4}));
  EXPECT_EQ(hashOfFrame({1, 2, 3}), hashOfFrame({1, 2, 3}));
}

}  // namespace
