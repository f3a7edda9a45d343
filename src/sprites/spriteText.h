// A sprite that is a text.
#pragma once

#include <string>

#include "sprites/sprite.h"

// Each flag says that the window's current value is used; the own value counts only while its flag is false.
struct TorvTextStyle {
  bool useWindowTextColor = true;
  xplColor textColor{0, 0, 0};
  bool useWindowFont = true;
  std::string fontName;
  bool useWindowFontSize = true;
  int fontSize = 10;  // points
  bool alignDefault = true;
  int alignment = 1;  // as in xplTextAttributes

  xplTextAttributes toAttributes() const;
};

class TorvSpriteText : public TorvSprite {
 public:
  using TorvSprite::TorvSprite;

  // Only while it is shown. Without a window: an error entry.
  void draw() override;
  // Without a window the size is 0 x 0 and stays invalid.
  void calcSize() override;
  // A text that is the present one changes nothing.
  virtual void setText(const std::string& text);

  const std::string& text() const { return m_text; }
  TorvTextStyle style;

 private:
  std::string m_text;
};
