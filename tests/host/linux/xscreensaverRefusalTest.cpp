// Tests when the installation into XScreenSaver's preferences file is refused, and that nothing is changed
// then.
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/linux/xscreensaverFixture.h"

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
namespace files = std::filesystem;

namespace {

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

}  // namespace
