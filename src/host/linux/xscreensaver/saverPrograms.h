// Where XScreenSaver finds the programs of its list.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace xscreensaver {

// Where it looks for a saver first, on the distributions that we know.
inline constexpr std::array<std::string_view, 5> saverFolders = {
    "/usr/libexec/xscreensaver", "/usr/lib/xscreensaver", "/usr/lib64/xscreensaver",
    "/usr/local/libexec/xscreensaver", "/usr/local/lib/xscreensaver"};

// Whether one of the folders of PATH holds a program of this name.
bool isOnPath(const std::string& name);
// Whether it can start a program, given as it stands in the list: a path, or a name alone.
bool canStart(const std::string& program);

}  // namespace xscreensaver
