// What those who start screen savers say of themselves in their settings.
#pragma once

#include <optional>
#include <string>

// How XScreenSaver's preferences file treats Lunaria.
struct XScreenSaverSettings {
  enum class Mode { off, blank, one, random };
  Mode mode = Mode::random;
  int minutes = 10;       // until it shows a saver; at least 1
  std::string chosen;     // the name of the one program; "" where none is chosen
  std::string program;    // Lunaria's, as the entry gives it that is shown; "" where none is
  bool isListed = false;  // Lunaria is in the list, and switched on
  int listed = 0;         // programs in the list that are switched on
};
// text: the file's; what it leaves out has XScreenSaver's own defaults.
XScreenSaverSettings readXScreenSaver(const std::string& text);

// Minutes of a time such as "0:10:00" or "10:00", rounded up; nothing where it is none.
std::optional<int> minutesOf(const std::string& time);

// Minutes, rounded up.
int roundedUpToMinutes(int seconds);

// After how many minutes a program that starts others when nobody is there starts Lunaria: 0 where it does so
// without saying when; nothing where it does not. text: the words with which swayidle, xautolock or another
// runs, or its settings; those of hypridle are told by their blocks.
std::optional<int> minutesUntilLunaria(const std::string& text);
