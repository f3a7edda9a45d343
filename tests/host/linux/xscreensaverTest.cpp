// Tests the installation into XScreenSaver's preferences file: what becomes of the file, and of the memory of
// it.
#include <filesystem>

#include <gmock/gmock.h>

#include "host/linux/xscreensaver/xscreensaverMemory.h"
#include "host/linux/xscreensaverFixture.h"

using testing::HasSubstr;
using testing::IsEmpty;
namespace files = std::filesystem;

namespace {

TEST_F(Xscreensaver, ItIsTheSaverAndThenAllIsAsItWas) {
  writeFile(path, before);
  EXPECT_THAT(install(), HasSubstr("Lunaria is XScreenSaver's saver now: " + path + " says so."));
  EXPECT_EQ(content(), after);
  EXPECT_THAT(uninstallFromXScreenSaver(), HasSubstr("it was taken out of " + path));
  EXPECT_EQ(content(), before);
}

TEST_F(Xscreensaver, NothingElseIsLeftInTheHomeOrAmongTheSettings) {
  writeFile(path, before);
  install();
  uninstallFromXScreenSaver();
  EXPECT_EQ(filesIn(home), std::vector<std::string>{".xscreensaver"});
  EXPECT_THAT(filesIn(xplFileSystemMini::getFolder_UserData()), IsEmpty());
}

TEST_F(Xscreensaver, AMissingFileIsMadeForTheUserAloneAndGoesAgain) {
  install();
  EXPECT_EQ(content(), "mode:\tone\nselected:\t0\nprograms:\t\t\t\t" + program + " --root\t\t\t\t    \\n\n");
  EXPECT_EQ(files::status(path).permissions(), files::perms::owner_read | files::perms::owner_write);
  uninstallFromXScreenSaver();
  EXPECT_FALSE(files::exists(path));
}

TEST_F(Xscreensaver, AFileThatWasMadeStaysOnceItHoldsSomethingElse) {
  install();
  writeFile(path, content() + "lock: True\n");
  uninstallFromXScreenSaver();
  EXPECT_EQ(content(), "lock: True\n");
}

TEST_F(Xscreensaver, AnEmptyFileStaysAnEmptyFile) {
  writeFile(path, "");
  install();
  uninstallFromXScreenSaver();
  EXPECT_TRUE(files::exists(path));
  EXPECT_EQ(content(), "");
}

TEST_F(Xscreensaver, InstallingTwiceIsInstallingOnce) {
  writeFile(path, before);
  install();
  EXPECT_THAT(install(), HasSubstr("Lunaria is XScreenSaver's saver already"));
  EXPECT_EQ(content(), after);
  uninstallFromXScreenSaver();
  EXPECT_EQ(content(), before);
}

TEST_F(Xscreensaver, TakingOutWhatIsNotThereChangesNothing) {
  EXPECT_THAT(uninstallFromXScreenSaver(), HasSubstr("nothing to change in " + path));
  EXPECT_FALSE(files::exists(path));
  writeFile(path, before);
  uninstallFromXScreenSaver();
  EXPECT_EQ(content(), before);
}

TEST_F(Xscreensaver, TheChoiceBeforeIsKnownAlsoWhenTheSettingsProgramHasWrittenTheFileAnew) {
  writeFile(path, "mode: blank\nselected: 1\n");
  install();
  writeFile(path,
            "# new\nmode:\t\tone\nselected:\t0\nprograms:\t\\\n\tlunaria --root\t \\n\\\n\tmaze --root\t "
            "\\n\\\n\n");
  uninstallFromXScreenSaver();
  EXPECT_EQ(content(), "# new\nmode:\t\tblank\nselected:\t1\nprograms:\t\\\n\tmaze --root\t \\n\\\n\n");
}

TEST_F(Xscreensaver, ALinkStaysAndItsTargetIsWritten) {
  files::create_directories(home + "/dotfiles");
  writeFile(home + "/dotfiles/saver", before);
  files::create_symlink("dotfiles/saver", path);
  install();
  EXPECT_TRUE(files::is_symlink(path));
  EXPECT_EQ(readFile(home + "/dotfiles/saver"), after);
  uninstallFromXScreenSaver();
  EXPECT_TRUE(files::is_symlink(path));
  EXPECT_EQ(readFile(home + "/dotfiles/saver"), before);
}

TEST_F(Xscreensaver, ALinkToNothingLeadsToNothingAgain) {
  files::create_symlink(home + "/target", path);
  install();
  EXPECT_TRUE(files::is_symlink(path));
  EXPECT_TRUE(files::is_regular_file(home + "/target"));
  uninstallFromXScreenSaver();
  EXPECT_TRUE(files::is_symlink(path));
  EXPECT_FALSE(files::exists(home + "/target"));
}

TEST_F(Xscreensaver, TheFileKeepsItsMode) {
  writeFile(path, before);
  const auto mode = files::perms::owner_read | files::perms::owner_write | files::perms::group_read;
  files::permissions(path, mode);
  install();
  EXPECT_EQ(files::status(path).permissions(), mode);
}

TEST_F(Xscreensaver, ABadMemoryIsNone) {
  writeFile(path, before);
  install();
  writeFile(xscreensaver::memoryPath(), "nonsense\n%%=%\n");
  uninstallFromXScreenSaver();
  std::string expected = before;
  EXPECT_EQ(content(), expected.replace(expected.find("\t0"), 2, "\t-1"));
}

TEST(XscreensaverMemory, ComesBackFromItsText) {
  using xscreensaver::ChoiceBefore;
  for (const ChoiceBefore& choice :
       {ChoiceBefore{}, ChoiceBefore{"", ""}, ChoiceBefore{"one", std::nullopt},
        ChoiceBefore{std::nullopt, "-1"}, ChoiceBefore{"ran%dom \t", "\\\n 1\r=%0a\xff"}}) {
    for (const bool hadFile : {true, false}) {
      const auto memory =
          xscreensaver::memoryOf(xscreensaver::textOf({.hadFile = hadFile, .choice = choice}));
      ASSERT_TRUE(memory);
      EXPECT_EQ(memory->hadFile, hadFile);
      EXPECT_EQ(memory->choice.mode, choice.mode);
      EXPECT_EQ(memory->choice.selected, choice.selected);
    }
  }
  for (const char* text : {"", "\n", "mode=one\n", "file"}) {
    EXPECT_FALSE(xscreensaver::memoryOf(text)) << text;
  }
}

}  // namespace
