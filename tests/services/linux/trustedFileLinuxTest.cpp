// Whose files a library is loaded from on Linux.
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "harness/privateFolders.h"
#include "services/platform.h"
#include "services/vendorAnalytics.h"
#include "support/fileSystem.h"

namespace {

class TrustedFileOfLinux : public PrivateFolders {
 protected:
  TrustedFileOfLinux() {
    folder = xplFileSystemMini::joinPath(root(), "program");
    file = xplFileSystemMini::joinPath(folder, xplAnalyticsLibraryName());
    mkdir(folder.c_str(), 0755);
    writeFile(file, "content");
    chmod(root().c_str(), 0755);
    chmod(folder.c_str(), 0755);
    chmod(file.c_str(), 0644);
  }
  bool isTrusted() const {
    std::string reason;
    const bool answer = xplOnlyUserCanChange(file, reason);
    EXPECT_EQ(answer, reason.empty());
    return answer;
  }

  std::string folder;
  std::string file;
};

TEST_F(TrustedFileOfLinux, TheUsersOwnFileIsTrusted) {
  EXPECT_TRUE(isTrusted());
}

TEST_F(TrustedFileOfLinux, AFileThatOthersMayWriteIsNot) {
  for (const unsigned rights : {0646U, 0664U, 0666U}) {
    chmod(file.c_str(), rights);
    EXPECT_FALSE(isTrusted()) << std::oct << rights;
  }
}

TEST_F(TrustedFileOfLinux, AFolderThatOthersMayWriteIsNotEvenWhereTheyMayTouchOnlyTheirOwn) {
  for (const unsigned rights : {0757U, 0775U, 01777U}) {
    chmod(folder.c_str(), rights);
    EXPECT_FALSE(isTrusted()) << std::oct << rights;
  }
}

TEST_F(TrustedFileOfLinux, AFolderAboveThatOthersMayWriteIsNotUnlessTheyMayTouchOnlyTheirOwn) {
  chmod(root().c_str(), 0777);
  EXPECT_FALSE(isTrusted());
  chmod(root().c_str(), 01777);
  EXPECT_TRUE(isTrusted());
}

TEST_F(TrustedFileOfLinux, ALinkIsNot) {
  const std::string target = file + ".real";
  std::filesystem::rename(file, target);
  std::filesystem::create_symlink(target, file);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfLinux, AFolderThatIsALinkIsNot) {
  const std::string target = folder + ".real";
  std::filesystem::rename(folder, target);
  std::filesystem::create_directory_symlink(target, folder);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfLinux, AFileOrFolderOfAnotherUserIsNot) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only root can give files away";
  }
  constexpr uid_t another = 65534;
  ASSERT_EQ(chown(file.c_str(), another, another), 0);
  EXPECT_FALSE(isTrusted());
  ASSERT_EQ(chown(file.c_str(), 0, 0), 0);
  EXPECT_TRUE(isTrusted());
  ASSERT_EQ(chown(folder.c_str(), another, another), 0);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfLinux, WhatIsNotTrustedIsNotLoadedAndTheLogSaysSo) {
  chmod(folder.c_str(), 0777);
  EXPECT_EQ(VendorAnalytics::load(folder), nullptr);
  EXPECT_EQ(countEntries(file + " is not loaded: others can change it or its folder", "Warning"), 1);
}

}  // namespace
