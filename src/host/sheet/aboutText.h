// The text of the About page.
#pragma once

#include <string>

// Paragraphs parted by "\n\n", with one link as <a>…</a>, which says no address: not every link control takes
// one. settingsFile: the full path that the text ends with. lineBreak: what stands between the lines of a
// paragraph, of at most about 50 letters: "\n", or " " where the control breaks lines at blanks by itself.
std::string aboutText(const std::string& settingsFile, const std::string& lineBreak);

// What the link leads to.
std::string aboutAddress();
