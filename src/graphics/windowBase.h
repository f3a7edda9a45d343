// The window's part that is the same on every platform: attribute stacks and the operations derived from
// others.
#pragma once

#include <string>

#include "graphics/attributeStack.h"
#include "graphics/color.h"
#include "graphics/rect.h"
#include "graphics/textAttributes.h"

// Coordinates are pixels of the window, (0, 0) at its top left, unless said otherwise.
class xplWindowBase {
 public:
  xplWindowBase() = default;
  xplWindowBase(const xplWindowBase&) = delete;
  xplWindowBase& operator=(const xplWindowBase&) = delete;

  virtual ~xplWindowBase() = default;
  // Shows the back buffer on the window; nothing while the back buffer is not in use.
  virtual void flush() = 0;
  virtual void clear() = 0;  // fills with the current background colour
  // Fills the stored window rectangle. Deliberate: it is in screen coordinates and used as it stands.
  virtual void fillWindow(xplColor color) = 0;
  virtual void fillRect(const xplRect<int>& rectangle, xplColor color) = 0;
  virtual void fillEllipse(int left, int top, int right, int bottom, xplColor color) = 0;
  virtual void fillCircle(int x, int y, int radius, xplColor color);
  // attributes may be null.
  virtual void drawText(int x, int y, const std::string& text, const xplTextAttributes* attributes) = 0;
  virtual void drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) = 0;
  virtual void pushTextAttributes(const xplTextAttributes* attributes) = 0;
  virtual void popTextAttributes(const xplTextAttributes* attributes) = 0;
  virtual xplColor getPixel(int x, int y) = 0;  // opaque black outside the window
  virtual void setPixel(int x, int y, xplColor color) = 0;
  virtual int getWidth() = 0;
  virtual int getHeight() = 0;
  virtual int getTop() = 0;   // screen coordinates
  virtual int getLeft() = 0;  // screen coordinates
  virtual int getBottom();
  virtual int getRight();
  // Measures with the current font attributes. Either out argument may be null.
  virtual void getTextSize(const std::string& text, int* width, int* height) = 0;
  // Whether drawing goes to the back buffer (true at first) or straight to the window.
  virtual void setUseBackBuffer(bool use) { useBackBuffer = use; }

  xplAttributeStack<xplColor> backgroundColor{xplColor(255, 239, 213)};
  xplAttributeStack<xplColor> textColor{xplColor(255, 255, 0)};
  xplAttributeStack<std::string> fontName{"Arial"};
  xplAttributeStack<int> fontSize{12};  // points
  xplAttributeStack<int> textAlignment{xplTextDrawingInfo::alignLeft};
  xplAttributeStack<float> characterSpacing{0.0F};  // pixels
  xplAttributeStack<int> nonAntialiased{0};
  xplAttributeStack<int> thin{0};

 protected:
  // The font attributes as they stand: face, size, spacing and the two flags; no colour, no alignment.
  xplTextDrawingInfo currentFontInfo() const;
  // Called after each drawing operation, for platforms that show direct drawing themselves.
  virtual void drawn() {}

  bool useBackBuffer = true;
};
