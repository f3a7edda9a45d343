// The About page.
#pragma once

#include <QLabel>
#include <string>

// A text with a link, which the keyboard reaches and which opens in the user's browser.
class AboutPage : public QLabel {
 public:
  AboutPage();

  // Shows the text; it names this settings file by its full path (UTF-8).
  void open(const std::string& settingsFile);
};
