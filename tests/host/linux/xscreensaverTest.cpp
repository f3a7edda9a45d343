// Tests the installation into XScreenSaver's preferences file: what becomes of the file, and when it is
// refused.
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "host/linux/hostFailure.h"
#include "host/linux/xscreensaver.h"
#include "host/linux/xscreensaverMemory.h"
#include "support/fileSystem.h"

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
namespace files = std::filesystem;

namespace {

class Xscreensaver : public PrivateFolders {
 protected:
  Xscreensaver() {
    files::create_directories(root() + "/bin");
    writeFile(program, "#!/bin/sh\n");
    files::permissions(program, files::perms::owner_all);
  }

  std::string install() const { return installInXScreenSaver(program); }
  // What is said where the work is refused.
  std::string refusal() const {
    try {
      return "no refusal: " + install();
    } catch (const HostFailure& failure) {
      return failure.what();
    }
  }
  static std::string refusalToTakeOut() {
    try {
      return "no refusal: " + uninstallFromXScreenSaver();
    } catch (const HostFailure& failure) {
      return failure.what();
    }
  }
  std::string content() const { return readFile(path); }

  const std::string program = root() + "/bin/lunaria";
  const std::string home = xplFileSystemMini::getFolder_UserHome();
  const std::string path = home + "/.xscreensaver";
  const std::string before =
      "mode:\trandom\nselected:\t0\nprograms:\\\n\t\tmaze --root \\n\\\n\ntimeout: 0:10:00\n";
  const std::string after = "mode:\tone\nselected:\t1\nprograms:\\\n\t\tmaze --root \\n\\\n\t\t\t\t" +
                            program + " --root\t\t\t\t    \\n\\\n\ntimeout: 0:10:00\n";
};

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

TEST_F(Xscreensaver, AFolderInItsPlaceIsRefused) {
  files::create_directory(path);
  EXPECT_EQ(refusal(), "cannot read " + path + " (it is a folder): move it away");
  EXPECT_EQ(refusalToTakeOut(), "cannot read " + path + " (it is a folder): move it away");
  EXPECT_TRUE(files::is_directory(path));
}

TEST_F(Xscreensaver, APipeInItsPlaceIsRefusedAtOnce) {
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(refusal(), "cannot read " + path + " (it is no regular file): move it away");
}

TEST_F(Xscreensaver, AHugeFileIsRefused) {
  writeFile(path, std::string(1024 * 1024 + 1, '#'));
  EXPECT_THAT(refusal(), HasSubstr("cannot read " + path + " (it is larger than 1 MiB)"));
  writeFile(path, std::string(1024 * 1024, '#'));
  EXPECT_THAT(refusal(), HasSubstr("no refusal"));
}

TEST_F(Xscreensaver, ALoopOfLinksIsRefused) {
  files::create_symlink(path, path);
  EXPECT_THAT(refusal(), HasSubstr("cannot read " + path + " ("));
  EXPECT_TRUE(files::is_symlink(path));
}

TEST_F(Xscreensaver, AListWithLineEndsOfWindowsIsRefusedWithTheCure) {
  const std::string text = "programs:\\\r\n maze --root \\n\\\r\n\r\n";
  writeFile(path, text);
  EXPECT_THAT(refusal(), AllOf(HasSubstr(path + " has line ends of Windows"),
                               EndsWith("sed -i 's/\\r$//' '" + path + "'")));
  EXPECT_EQ(content(), text);
}

TEST_F(Xscreensaver, AFileThatCannotBeReplacedStaysAsItIs) {
  if (geteuid() == 0) {
    GTEST_SKIP() << "the super user may write everything";
  }
  writeFile(path, before);
  files::permissions(path, files::perms::owner_read);
  EXPECT_THAT(refusal(), AllOf(HasSubstr("cannot write " + path + " (Permission denied)"),
                               EndsWith("nothing was changed")));
  files::permissions(path, files::perms::owner_all);
  files::permissions(home, files::perms::owner_read | files::perms::owner_exec);
  EXPECT_THAT(refusal(), HasSubstr("cannot write " + path + " (Permission denied)"));
  files::permissions(home, files::perms::owner_all);
  EXPECT_EQ(content(), before);
  EXPECT_EQ(filesIn(home), std::vector<std::string>{".xscreensaver"});
}

TEST_F(Xscreensaver, AFileOfAnotherUserIsRefused) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only the super user can give a file away";
  }
  writeFile(path, before);
  ASSERT_EQ(chown(path.c_str(), 12345, 12345), 0);
  EXPECT_EQ(refusal(),
            "cannot write " + path +
                " (it belongs to another user): run this as that user, without sudo; nothing was changed");
  EXPECT_EQ(content(), before);
}

TEST_F(Xscreensaver, ANewFileInTheHomeOfAnotherUserIsRefused) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only the super user can give a folder away";
  }
  ASSERT_EQ(chown(home.c_str(), 12345, 12345), 0);
  EXPECT_THAT(refusal(), HasSubstr("(it belongs to another user)"));
  EXPECT_FALSE(files::exists(path));
  EXPECT_THAT(filesIn(xplFileSystemMini::getFolder_UserData()), IsEmpty());
}

TEST_F(Xscreensaver, ABadMemoryIsNone) {
  writeFile(path, before);
  install();
  writeFile(xscreensaver::memoryPath(), "nonsense\n%%=%\n");
  uninstallFromXScreenSaver();
  std::string expected = before;
  EXPECT_EQ(content(), expected.replace(expected.find("\t0"), 2, "\t-1"));
}

TEST_F(Xscreensaver, WithoutAPlaceForTheMemoryNothingIsChanged) {
  writeFile(path, before);
  writeFile(xplFileSystemMini::getFolder_UserData() + "/Lunaria software", "a file in the folder's place");
  EXPECT_THAT(refusal(), HasSubstr("xscreensaver-before"));
  EXPECT_EQ(content(), before);
}

TEST_F(Xscreensaver, AProgramThatTheListCannotNameIsRefused) {
  for (const char* name :
       {"/a b/lunaria", "/a'b/lunaria", "/a\\b/lunaria", "/a/lunaria5", "/\xc3\xa4/lunaria", ""}) {
    EXPECT_THROW(installInXScreenSaver(name), HostFailure) << name;
  }
  EXPECT_FALSE(files::exists(path));
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
