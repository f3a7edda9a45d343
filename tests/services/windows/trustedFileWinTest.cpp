// Whose files a library is loaded from on Windows.
#include <filesystem>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "services/platform.h"
#include "services/vendorAnalytics.h"
#include "support/fileSystem.h"
#include "support/windows/shellHeaders.h"

// These build on the above.
#include <aclapi.h>
#include <sddl.h>

namespace {

class TrustedFileOfWindows : public PrivateFolders {
 protected:
  TrustedFileOfWindows() {
    folder = xplFileSystemMini::joinPath(root(), "program");
    xplFileSystemMini::createFolder(folder);
    file = xplFileSystemMini::joinPath(folder, xplAnalyticsLibraryName());
    writeFile(file, "content");
  }
  // Sets the access list from its text form.
  static void setAccess(const std::string& path, const char* text) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_TRUE(
        ConvertStringSecurityDescriptorToSecurityDescriptorA(text, SDDL_REVISION_1, &descriptor, nullptr));
    EXPECT_TRUE(SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, descriptor)) << GetLastError();
    LocalFree(descriptor);
  }
  bool isTrusted() {
    std::string reason;
    const bool answer = xplOnlyUserCanChange(file, reason);
    EXPECT_EQ(answer, reason.empty());
    return answer;
  }

  std::string folder;
  std::string file;
};

constexpr char everyoneMayWrite[] = "D:(A;;FA;;;WD)";

TEST_F(TrustedFileOfWindows, TheUsersOwnFileIsTrusted) {
  EXPECT_TRUE(isTrusted());
}

TEST_F(TrustedFileOfWindows, AFileThatEveryoneMayWriteIsNot) {
  setAccess(file, everyoneMayWrite);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfWindows, AFolderThatEveryoneMayWriteIsNot) {
  setAccess(folder, everyoneMayWrite);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfWindows, AFolderAboveThatEveryoneMayWriteIsNot) {
  setAccess(root(), everyoneMayWrite);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfWindows, WhatOthersMayReadAloneIsTrusted) {
  setAccess(file, "D:(A;;FA;;;BA)(A;;FR;;;WD)");
  EXPECT_TRUE(isTrusted());
}

TEST_F(TrustedFileOfWindows, WhatIsNotTrustedIsNotLoadedAndTheLogSaysSo) {
  setAccess(folder, everyoneMayWrite);
  EXPECT_EQ(VendorAnalytics::load(folder), nullptr);
  EXPECT_EQ(countEntries(file + " is not loaded: others can change it or its folder", "Warning"), 1);
}

TEST_F(TrustedFileOfWindows, AFileThatIsNotThereIsNot) {
  std::filesystem::remove(file);
  EXPECT_FALSE(isTrusted());
}

TEST_F(TrustedFileOfWindows, APathThatIsNotFullIsNot) {
  std::string reason;
  for (const std::string path : {"", "library.dll", "\\\\server\\share\\library.dll", "C:library.dll"}) {
    EXPECT_FALSE(xplOnlyUserCanChange(path, reason)) << path;
  }
  EXPECT_EQ(reason, "its path is not a full one on a drive");
}

}  // namespace
