// What the tests of the settings store share: its file in folders of their own, and the log's entries about
// it.
#pragma once

#include <string>

#include "harness/privateFolders.h"
#include "support/fileSystem.h"
#include "support/settings.h"

class Settings : public PrivateFolders {
 protected:
  std::string folder() const {
    return xplFileSystemMini::joinPath(xplFileSystemMini::getFolder_UserData(), "Lunaria software");
  }
  std::string file() const { return xplFileSystemMini::joinPath(folder(), "Lunaria screensaver.ini"); }
  // A settings file that stands there before the store is opened.
  void given(const std::string& content) const {
    xplFileSystemMini::createFolder(folder());
    writeFile(file(), content);
  }
  std::string saved() const {
    std::string text = readFile(file());
    std::erase(text, '\r');
    return text;
  }
  std::string loadError() const { return "Error #1351: loading xplSettings from file:" + file(); }
  std::string setError() const { return "Error #1352c: saving xplSettings to file:" + file(); }
  std::string endError() const { return "Error #1352: saving xplSettings to file:" + file(); }
  int countSaveErrors() const {
    int count = 0;
    for (const auto& entry : logEntries()) {
      const std::string start = "Error saving file " + file() + " Error message:";
      count += entry.rfind(start, 0) == 0 && entry.size() > start.size() ? 1 : 0;
    }
    return count;
  }
};
