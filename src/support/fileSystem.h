// Well-known folders, the program's own file, and the few file operations that the log and the settings need.
#pragma once

#include <string>
#include <string_view>

// All paths are narrow strings: UTF-8 on Linux, the system code page on Windows.
class xplFileSystemMini {
 public:
  // Folder queries. Each returns an empty string when the platform cannot tell; all but the temporary
  // folder's then write an error entry. The temporary folder ends with a separator, the others do not.
  static std::string getFolder_Temporary();
  static std::string getFolder_UserHome();
  static std::string getFolder_CommonAppData();
  static std::string getFolder_UserData();
  static std::string getFolder_Desktop();
  static std::string getFolder_Fonts();

  // Kind 1 is getFolder_CommonAppData, 2 the temporary folder, 3 getFolder_UserData; any other gives "".
  static std::string getFolderByKind(int kind);

  // The program's own file: its full path ("" where unknown), its name, and its folder (no separator at the
  // end).
  static std::string applicationFullPath();
  static std::string applicationFileName();
  static std::string applicationFolder();

  // Joins with exactly one separator between the two; an empty folder gives the name alone.
  static std::string joinPath(std::string_view folder, std::string_view name);
  // The part after the last '\' or '/'; the whole path where there is none.
  static std::string fileNameOf(std::string_view path);
  // The part before the last '\' or '/'; empty where there is none.
  static std::string folderOf(std::string_view path);

  static bool fileExists(const std::string& path);    // as a regular file
  static bool folderExists(const std::string& path);  // as a folder
  // Makes one folder level; false when it could not (also when it was there already).
  static bool createFolder(const std::string& path);
  // Leaves an empty file, made where there was none. Follows no link.
  static bool emptyFile(const std::string& path);
  // Appends the text in the platform's text mode ("\n" becomes its line end). Follows no link.
  static bool appendToFile(const std::string& path, std::string_view text);
  // Copies a file into a folder under its own name, replacing what is there. False without such a folder.
  static bool copyFileIntoFolder(const std::string& path, const std::string& folder);
  // Replaces the file whole or not at all: a new file beside it is written, flushed and renamed over it. The
  // bytes are written as they stand. A symbolic link stays, and what it leads to is replaced; a file keeps
  // its mode. Where the system does not replace a file that is being read, it is waited for, 50 milliseconds
  // at most. On failure the old file is untouched, false is returned, and errorMessage holds the system's
  // message.
  static bool replaceFile(const std::string& path, std::string_view content, std::string& errorMessage);

  // A plain-text report of the folders, one a line.
  static std::string report();

  // From now on every folder query answers with a folder below `root` (made where missing), so that tests and
  // the renderer touch nothing of the user's. An empty root ends it.
  static void redirectFolders(const std::string& root);

  // The character that the platform puts between folders.
  static char separator();
  // True for what may stand between folders in a path of this platform.
  static bool isSeparator(char character);
  // What ends a line of a text file on this platform.
  static const char* lineEnd();
};

// The text that goes to a debugger: standard error on Linux, where LUNARIA_DEBUG is set.
void xplWriteToDebugger(const char* text);
