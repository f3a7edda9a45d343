// The well-known folders on Windows.
#include <array>

#include "support/fileSystemPlatform.h"
#include "support/windows/shellHeaders.h"

namespace {

std::string shellFolder(int id) {
  std::array<char, MAX_PATH> path{};
  return SUCCEEDED(SHGetFolderPathA(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path.data())) ? path.data()
                                                                                            : "";
}

}  // namespace

namespace fileSystemPlatform {

std::string temporaryFolder() {
  std::array<char, MAX_PATH + 1> path{};
  const DWORD length = GetTempPathA(static_cast<DWORD>(path.size()), path.data());
  return length > 0 && length < path.size() ? path.data() : "";
}

std::string homeFolder() {
  return shellFolder(CSIDL_PROFILE);
}

std::string allUsersDataFolder() {
  return shellFolder(CSIDL_COMMON_APPDATA);
}

std::string userDataFolder() {
  return shellFolder(CSIDL_APPDATA);
}

std::string desktopFolder() {
  return shellFolder(CSIDL_DESKTOPDIRECTORY);
}

std::string fontsFolder() {
  return shellFolder(CSIDL_FONTS);
}

std::string applicationFullPath() {
  std::array<char, MAX_PATH> path{};
  const DWORD length = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return length > 0 && length < path.size() ? path.data() : "";
}

}  // namespace fileSystemPlatform
