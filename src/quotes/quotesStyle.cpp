// The style of quotes.
#include "quotes/quotesStyle.h"

#include "quotes/platform.h"

TorvTextStyle quotesStyle() {
  TorvTextStyle style;
  style.useWindowTextColor = false;
  style.textColor = xplColor(235, 225, 200);
  style.useWindowFont = false;
  style.fontName = quotesPlatform::faceName();
  style.useWindowFontSize = false;
  style.fontSize = 16;
  style.alignDefault = false;
  style.alignment = xplTextAttributes::alignmentLeft;
  return style;
}
