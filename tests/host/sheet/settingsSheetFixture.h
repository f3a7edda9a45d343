// What the tests of the sheet share: its file, and an ear for the sounds that it plays.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "harness/privateFolders.h"
#include "host/sheet/settingsSheet.h"
#include "support/fileSystem.h"

class SettingsSheetModel : public PrivateFolders {
 protected:
  SettingsSheetModel() { lastActivePage = 0; }
  static std::string settingsText() { return readFile(xplUserSettings().filename()); }
  static std::optional<std::string> inFile(const std::string& key) {
    return xplSettings(xplSettings::scopeUser).get(key);
  }
  // Puts a folder where the settings file would be: it can then not be written.
  static void blockFile() {
    std::filesystem::remove(xplUserSettings().filename());
    std::filesystem::create_directories(xplUserSettings().filename() + "/in the way");
  }
  static void unblockFile() { std::filesystem::remove_all(xplUserSettings().filename()); }

  std::vector<std::string> heard;
  SoundPreview preview{[this](int sound) { heard.push_back(std::to_string(sound)); },
                       [this] { heard.emplace_back("cuckoo"); }, [this] { heard.emplace_back("stop"); }};
};
