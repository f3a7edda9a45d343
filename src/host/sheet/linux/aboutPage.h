// The About page.
#pragma once

#include <QLabel>

// A text with a link, which the keyboard reaches and which opens in the user's browser.
class AboutPage : public QLabel {
 public:
  AboutPage();

  // Shows the text; it names the settings file.
  void open();
};
