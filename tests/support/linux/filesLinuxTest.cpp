// Tests the file operations on Linux: planted links, pipes, modes, links that stay, and a disk that is full.
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/linux/ordinaryUser.h"

namespace {

class FilesLinux : public PrivateFolders {
 protected:
  void SetUp() override { ASSERT_TRUE(xplFileSystemMini::createFolder(root() + "/files")); }
  std::string path(const std::string& name) const { return root() + "/files/" + name; }
  bool replace(const std::string& name, const std::string& content) {
    message.clear();
    return xplFileSystemMini::replaceFile(path(name), content, message);
  }
  static int modeOf(const std::string& file) {
    struct stat status {};
    return lstat(file.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : -1;
  }
  static bool isLink(const std::string& file) {
    struct stat status {};
    return lstat(file.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
  }
  void link(const std::string& target, const std::string& name) const {
    ASSERT_EQ(symlink(target.c_str(), path(name).c_str()), 0);
  }

  std::string message;
};

// No file of the process can grow beyond this many bytes while the object lives: a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    m_handler = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limited{bytes, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit m_before{};
  void (*m_handler)(int);
};

}  // namespace

TEST_F(FilesLinux, LinkAtTheFilesPlaceIsNeitherEmptiedNorAppendedTo) {
  writeFile(path("victim"), "precious");
  link(path("victim"), "file");
  EXPECT_FALSE(xplFileSystemMini::emptyFile(path("file")));
  EXPECT_FALSE(xplFileSystemMini::appendToFile(path("file"), "text"));
  EXPECT_EQ(readFile(path("victim")), "precious");
  link(path("absent"), "dangling");
  EXPECT_FALSE(xplFileSystemMini::appendToFile(path("dangling"), "text"));
  EXPECT_FALSE(xplFileSystemMini::fileExists(path("absent")));
}

TEST_F(FilesLinux, PipeAndDeviceAreNeitherWaitedForNorWritten) {
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(xplFileSystemMini::emptyFile(path("pipe")));
  EXPECT_FALSE(xplFileSystemMini::appendToFile(path("pipe"), "text"));
  const int reader = open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  EXPECT_FALSE(xplFileSystemMini::appendToFile(path("pipe"), "text"));
  char byte = 0;
  EXPECT_LE(read(reader, &byte, 1), 0);
  close(reader);
  EXPECT_FALSE(xplFileSystemMini::appendToFile("/dev/null", "text"));
}

TEST_F(FilesLinux, NewFilesAreTheUsersAlone) {
  ASSERT_TRUE(xplFileSystemMini::appendToFile(path("log"), "text"));
  ASSERT_TRUE(xplFileSystemMini::emptyFile(path("empty")));
  ASSERT_TRUE(replace("settings", "text"));
  EXPECT_EQ(modeOf(path("log")), 0600);
  EXPECT_EQ(modeOf(path("empty")), 0600);
  EXPECT_EQ(modeOf(path("settings")), 0600);
}

TEST_F(FilesLinux, ReplaceKeepsTheMode) {
  writeFile(path("file"), "old");
  for (const mode_t mode : {mode_t{0644}, mode_t{0600}, mode_t{0666}, mode_t{0640}}) {
    ASSERT_EQ(chmod(path("file").c_str(), mode), 0);
    EXPECT_TRUE(replace("file", "new"));
    EXPECT_EQ(modeOf(path("file")), static_cast<int>(mode));
  }
}

TEST_F(FilesLinux, ReplaceKeepsALinkAndReplacesWhatItLeadsTo) {
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("elsewhere")));
  writeFile(path("elsewhere/target"), "old");
  link("elsewhere/target", "relative");
  link(path("relative"), "chain");
  EXPECT_TRUE(replace("chain", "new"));
  EXPECT_TRUE(isLink(path("chain")));
  EXPECT_TRUE(isLink(path("relative")));
  EXPECT_FALSE(isLink(path("elsewhere/target")));
  EXPECT_EQ(readFile(path("elsewhere/target")), "new");
  EXPECT_EQ(filesIn(path("elsewhere")), std::vector<std::string>{"target"});
  EXPECT_EQ(filesIn(path("")), (std::vector<std::string>{"chain", "elsewhere", "relative"}));
}

TEST_F(FilesLinux, ReplaceMakesTheFileThatALinkLeadsTo) {
  link("later", "file");
  EXPECT_TRUE(replace("file", "new"));
  EXPECT_TRUE(isLink(path("file")));
  EXPECT_EQ(readFile(path("later")), "new");
}

TEST_F(FilesLinux, ReplaceRefusesACircleOfLinks) {
  link("b", "a");
  link("a", "b");
  EXPECT_FALSE(replace("a", "new"));
  EXPECT_NE(message, "");
  EXPECT_EQ(filesIn(path("")), (std::vector<std::string>{"a", "b"}));
}

TEST_F(FilesLinux, ReplaceRefusesAPipe) {
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(replace("pipe", "new"));
  EXPECT_NE(message, "");
  EXPECT_EQ(filesIn(path("")), std::vector<std::string>{"pipe"});
}

TEST_F(FilesLinux, ReplaceOfARelativeNameStaysInTheCurrentFolder) {
  char before[4096] = "";
  ASSERT_NE(getcwd(before, sizeof before), nullptr);
  ASSERT_EQ(chdir(path("").c_str()), 0);
  const bool done = xplFileSystemMini::replaceFile("name", "new", message);
  ASSERT_EQ(chdir(before), 0);
  EXPECT_TRUE(done) << message;
  EXPECT_EQ(readFile(path("name")), "new");
}

TEST_F(FilesLinux, FullDiskLeavesTheOldFileWhole) {
  ASSERT_TRUE(replace("file", "old"));
  {
    const FullDisk full(65536);
    EXPECT_FALSE(replace("file", std::string(200000, 'x')));
  }
  EXPECT_EQ(message, "File too large");
  EXPECT_EQ(readFile(path("file")), "old");
  EXPECT_EQ(filesIn(path("")), std::vector<std::string>{"file"});
}

TEST_F(FilesLinux, FolderWithoutRightsLeavesTheOldFileWhole) {
  ASSERT_TRUE(replace("file", "old"));
  const OrdinaryUser user(root());
  if (!user.canUse(path(""))) {
    GTEST_SKIP() << "no ordinary user can reach " << root();
  }
  ASSERT_EQ(chmod(path("").c_str(), 0500), 0);
  EXPECT_FALSE(replace("file", "new"));
  EXPECT_EQ(message, "Permission denied");
  ASSERT_EQ(chmod(path("").c_str(), 0700), 0);
  EXPECT_EQ(readFile(path("file")), "old");
  EXPECT_EQ(filesIn(path("")), std::vector<std::string>{"file"});
}

TEST_F(FilesLinux, FileThatItsOwnerProtectedStays) {
  ASSERT_TRUE(replace("file", "old"));
  const OrdinaryUser user(root());
  if (!user.canUse(path(""))) {
    GTEST_SKIP() << "no ordinary user can reach " << root();
  }
  ASSERT_EQ(chmod(path("file").c_str(), 0400), 0);
  EXPECT_FALSE(replace("file", "new"));
  EXPECT_EQ(message, "Permission denied");
  EXPECT_EQ(readFile(path("file")), "old");
  EXPECT_EQ(filesIn(path("")), std::vector<std::string>{"file"});
}

TEST_F(FilesLinux, CopyReplacesALinkInsteadOfFollowingIt) {
  writeFile(path("file"), "new");
  writeFile(path("victim"), "precious");
  ASSERT_TRUE(xplFileSystemMini::createFolder(path("desktop")));
  ASSERT_EQ(symlink(path("victim").c_str(), path("desktop/file").c_str()), 0);
  EXPECT_TRUE(xplFileSystemMini::copyFileIntoFolder(path("file"), path("desktop")));
  EXPECT_EQ(readFile(path("victim")), "precious");
  EXPECT_EQ(readFile(path("desktop/file")), "new");
  EXPECT_FALSE(isLink(path("desktop/file")));
}
