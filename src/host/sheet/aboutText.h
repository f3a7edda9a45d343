// The text of the About page.
#pragma once

#include <string>

// In the form that a link control takes: paragraphs parted by "\n\n", and one link as <a href="…">…</a>.
// settingsFile: the full path that the text names.
std::string aboutText(const std::string& settingsFile);

// What the link leads to.
std::string aboutAddress();
