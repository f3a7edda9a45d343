// The tables of controls and values.
#include "host/sheet/pageSettings.h"

#include <algorithm>
#include <optional>
#include <span>

#include "host/sheet/controlIds.h"
#include "support/settingsGroups.h"

namespace {

namespace id = controlIds;

struct RadioRow {
  int control;
  int value;
};

// The radio buttons of a page, and the one that stands for a value that none of the others has.
struct RadioTable {
  std::span<const RadioRow> rows;
  RadioRow fallback;
};

constexpr RadioRow moonRows[] = {{id::moonSmall, 100}, {id::moonLarge, 300}};
constexpr RadioTable moonTable = {moonRows, {id::moonMedium, 200}};

constexpr RadioRow backgroundRows[] = {{id::black, 0}, {id::darkBlue, 1}, {id::gradientBlue, 2}};
constexpr RadioTable backgroundTable = {backgroundRows, {id::starrySky, 3}};

constexpr RadioRow soundRows[] = {{id::sleepingWithTheOneILove, 1},
                                  {id::sleepReminder, 2},
                                  {id::lullaby, 3},
                                  {id::oceanWaves, 4},
                                  {id::birds, 5},
                                  {id::feelingBlue, 6}};
constexpr RadioTable soundTable = {soundRows, {id::silence, 0}};

constexpr RadioRow powerRows[] = {{id::awake2Hours, 1}, {id::awake8Hours, 2}, {id::awakePermanently, 3}};
constexpr RadioTable powerTable = {powerRows, {id::runNormally, 0}};

constexpr RadioRow startupRows[] = {{id::oldTelevision, 1}};
constexpr RadioTable startupTable = {startupRows, {id::noStartupEffect, 0}};

int controlOf(const RadioTable& table, int value) {
  const auto row = std::ranges::find(table.rows, value, &RadioRow::value);
  return row != table.rows.end() ? row->control : table.fallback.control;
}

bool contains(const std::vector<int>& checked, int control) {
  return std::ranges::find(checked, control) != checked.end();
}

int valueOf(const RadioTable& table, const std::vector<int>& checked) {
  for (const RadioRow& row : table.rows) {
    if (contains(checked, row.control)) {
      return row.value;
    }
  }
  return table.fallback.value;
}

struct RadioSetting {
  RadioTable table;
  xplSetting<int> setting;
};

std::optional<RadioSetting> radioSettingOf(int page, xplSettings& store) {
  switch (page) {
    case moonPage:
      return RadioSetting{moonTable, cMoonSettings(store).moonSize};
    case backgroundPage:
      return RadioSetting{backgroundTable, cAppSettings(store).background};
    case soundsPage:
      return RadioSetting{soundTable, cSoundSettings(store).snd_selectedSound};
    case powerPage:
      return RadioSetting{powerTable, cAppSettings(store).preventComputerSleep};
    case startupPage:
      return RadioSetting{startupTable, cAppSettings(store).startupEffect};
    default:
      return std::nullopt;
  }
}

struct CheckSetting {
  int control;
  xplSetting<bool> setting;
};

std::vector<CheckSetting> checkSettingsOf(int page, xplSettings& store) {
  if (page == soundsPage) {
    return {{id::cookooEveryHour, cSoundSettings(store).snd_cookooEveryHour}};
  }
  if (page != quotesPage) {
    return {};
  }
  const cAppSettings app(store);
  return {{id::love, app.showQuotes_Love},     {id::wisdom, app.showQuotes_Wisdom},
          {id::advice, app.showQuotes_Advice}, {id::peace, app.showQuotes_Peace},
          {id::funny, app.showQuotes_Funny},   {id::womenVSMen, app.showQuotes_WomenVSMen}};
}

// The hours count from the moment of confirming.
void startTimedSleepPrevention(const std::vector<int>& checked, xplSettings& store) {
  constexpr int shortTime = 2;  // hours
  constexpr int longTime = 8;
  if (contains(checked, id::awake2Hours)) {
    cAppSettings(store).preventSleepForHours(shortTime);
  } else if (contains(checked, id::awake8Hours)) {
    cAppSettings(store).preventSleepForHours(longTime);
  }
}

}  // namespace

std::vector<int> checkedControlsFor(int page, xplSettings& store) {
  std::vector<int> checked;
  if (const auto radio = radioSettingOf(page, store)) {
    checked.push_back(controlOf(radio->table, radio->setting.read()));
  }
  for (const CheckSetting& check : checkSettingsOf(page, store)) {
    if (check.setting.read()) {
      checked.push_back(check.control);
    }
  }
  return checked;
}

void writePageSettings(int page, const std::vector<int>& checked, xplSettings& store) {
  if (auto radio = radioSettingOf(page, store)) {
    radio->setting.write(valueOf(radio->table, checked));
  }
  for (CheckSetting& check : checkSettingsOf(page, store)) {
    check.setting.write(contains(checked, check.control));
  }
  if (page == powerPage) {
    startTimedSleepPrevention(checked, store);
  }
}

int soundOf(int control) {
  return valueOf(soundTable, {control});
}
