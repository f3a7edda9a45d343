// The folders and the copy that a platform supplies to xplFileSystemMini.
#pragma once

#include <string>

// Each folder is an empty string where the platform cannot tell. None writes to the log: the log asks them.
namespace fileSystemPlatform {

std::string temporaryFolder();  // ends with a separator unless empty
std::string homeFolder();
std::string allUsersDataFolder();
std::string userDataFolder();
std::string desktopFolder();
std::string fontsFolder();
std::string applicationFullPath();
// Replaces `to` by a copy of `from`; false on failure.
bool copyFile(const std::string& from, const std::string& to);

}  // namespace fileSystemPlatform
