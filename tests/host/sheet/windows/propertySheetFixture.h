// A fixture that shows the property sheet and looks into the settings file.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "harness/privateFolders.h"
#include "host/sheet/windows/sheetDriver.h"
#include "support/settings.h"

class PropertySheetTest : public PrivateFolders {
 protected:
  PropertySheetTest() { lastActivePage = 0; }
  static void show(const std::function<void(SheetDriver&)>& script) {
    SettingsSheet sheet;
    SheetDriver::run(sheet, script);
  }
  // Opens the sheet on a page, clicks, and confirms.
  static void choose(int page, const std::vector<int>& controls) {
    show([&](SheetDriver& driver) {
      driver.turnTo(page);
      for (const int control : controls) {
        driver.click(control);
      }
      driver.ok();
    });
  }
  static std::string settingsText() {
    std::string text = readFile(xplUserSettings().filename());
    std::erase(text, '\r');
    return text;
  }
  static std::string inFile(const std::string& key) {
    return xplSettings(xplSettings::scopeUser).get(key).value_or("(none)");
  }
};
