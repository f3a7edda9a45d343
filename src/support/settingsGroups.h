// The user's choices, in the four groups in which the program reads them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "support/setting.h"

class cMoonSettings {
 public:
  explicit cMoonSettings(xplSettings& store = xplUserSettings());

  xplSetting<int> moonSize;  // pixels; the settings sheet writes 100, 200 or 300
  xplSetting<bool> showMoon;
  xplSetting<bool> fromSouthHemisphere;
  xplSetting<bool> showMoonPhasePercentAndDegrees;
  xplSetting<bool> showMoonPhaseName;
  xplSetting<bool> showNotableDates;
};

// A message that the stars spell, and the line that scrolls below it. Line breaks are "\r\n".
struct sMessage {
  std::string message;
  std::string bottomLine;
};

class cMessageSettings {
 public:
  explicit cMessageSettings(xplSettings& store = xplUserSettings());

  // Reads the list; the first time ever an empty one gets the two default messages and is saved.
  void load();
  void save();
  void add(const sMessage& entry) { m_entries.push_back(entry); }
  // Put an entry before the one at an index in [0, count()], replace the one at an index in [0, count()),
  // take it away. An index out of range changes nothing. None of them moves currentIndex.
  void insert(std::size_t index, const sMessage& entry);
  void replace(std::size_t index, const sMessage& entry);
  void remove(std::size_t index);
  std::size_t count() const { return m_entries.size(); }
  // The entry at an index; null when it is out of range. Valid until the list changes.
  const sMessage* get(std::size_t index) const;

  // The entry that is edited or shown next; in [0, count()) unless the list is empty.
  std::size_t currentIndex = 0;

 private:
  xplSettings& m_store;
  xplSetting<int> m_messagesCount;
  xplSetting<bool> m_defaultMessagesAdded;
  std::vector<sMessage> m_entries;
};

class cAppSettings {
 public:
  explicit cAppSettings(xplSettings& store = xplUserSettings());

  // True when a category of quotes is on, the user's own counting only when it holds a quote.
  // userQuotesCount: how many quotes the user's file holds.
  bool anyQuoteCategoryOn(std::size_t userQuotesCount) const;
  // Sets the end of sleep prevention to now plus this many hours, in whole minutes.
  void preventSleepForHours(int hours);

  xplSetting<std::int64_t> preventComputerSleepUntilUTCtime_inMinutes;  // minutes since 1970-01-01 00:00 UTC
  xplSetting<bool> sisableTelemetry;
  xplSetting<int> activeDialogTab;       // index of a page of the settings sheet
  xplSetting<int> startupEffect;         // 1 is the old television, anything else none
  xplSetting<int> background;            // 0 black, 1 dark blue, 2 gradient blue, 3 starry sky
  xplSetting<int> preventComputerSleep;  // 0 run normally, 1 two hours, 2 eight hours, 3 permanently
  xplSetting<bool> showQuotes_Love;
  xplSetting<bool> showQuotes_Wisdom;
  xplSetting<bool> showQuotes_Advice;
  xplSetting<bool> showQuotes_Funny;
  xplSetting<bool> showQuotes_WomenVSMen;
  xplSetting<bool> showQuotes_Peace;
  xplSetting<bool> showQuotes_UserQuotes;
};

class cSoundSettings {
 public:
  explicit cSoundSettings(xplSettings& store = xplUserSettings());

  // 0 silence, 1 "Sleeping with the one I love", 2 "Sleep reminder", 3 "Lullaby", 4 "Ocean waves", 5 "Birds",
  // 6 "Feeling blue"
  xplSetting<int> snd_selectedSound;
  xplSetting<bool> snd_loopSound;
  xplSetting<bool> snd_cookooEveryHour;
};
