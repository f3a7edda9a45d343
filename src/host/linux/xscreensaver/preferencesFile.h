// Reads and writes a small file of the user's that belongs to another program, and loses nothing of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Each throws HostFailure, which names the file, the cause and the cure, and has then changed nothing.

// The file's bytes; nothing where there is no file. Symbolic links are followed. Refuses what is no regular
// file, is larger than a mebibyte, or cannot be read.
std::optional<std::string> readPreferences(const std::string& path);
// Replaces the file whole, or makes it. A symbolic link stays, and what it leads to is replaced; a file keeps
// its mode. Refuses a file or a folder that belongs to another user, which the new file would not.
void writePreferences(const std::string& path, std::string_view content);
// Removes the file. A symbolic link stays, and what it leads to is removed.
void removePreferences(const std::string& path);
