// The drawing operations on GDI.
#include "graphics/windows/drawingToolsWinDC.h"

#include "graphics/amplify.h"

namespace {

constexpr int defaultPoints = 10;
constexpr int pointsPerInch = 72;
constexpr int thinWeight = 100;
constexpr int normalWeight = 400;

COLORREF platformColor(xplColor color) {
  return RGB(color.red(), color.green(), color.blue());
}

// A drawing object that is selected for a scope, then put back and deleted.
class SelectedObject {
 public:
  SelectedObject(HDC context, HGDIOBJ object)
      : m_context(context), m_object(object), m_previous(SelectObject(context, object)) {}
  ~SelectedObject() {
    SelectObject(m_context, m_previous);
    DeleteObject(m_object);
  }
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;

 private:
  HDC m_context;
  HGDIOBJ m_object;
  HGDIOBJ m_previous;
};

// The extra space between characters for a scope.
class CharacterSpacing {
 public:
  CharacterSpacing(HDC context, const std::optional<float>& spacing) : m_context(context), m_isSet(spacing) {
    if (spacing) {
      m_previous = SetTextCharacterExtra(context, static_cast<int>(*spacing));
    }
  }
  ~CharacterSpacing() {
    if (m_isSet) {
      SetTextCharacterExtra(m_context, m_previous);
    }
  }
  CharacterSpacing(const CharacterSpacing&) = delete;
  CharacterSpacing& operator=(const CharacterSpacing&) = delete;

 private:
  HDC m_context;
  bool m_isSet;
  int m_previous = 0;
};

HFONT makeFont(HDC context, const xplTextDrawingInfo& info) {
  const int points = info.fontSize.value_or(defaultPoints);
  const int height = -MulDiv(points, GetDeviceCaps(context, LOGPIXELSY), pointsPerInch);
  return CreateFontA(height, 0, 0, 0, info.thin == 1 ? thinWeight : normalWeight, FALSE, FALSE, FALSE,
                     DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                     info.nonAntialiased == 1 ? NONANTIALIASED_QUALITY : DEFAULT_QUALITY,
                     DEFAULT_PITCH | FF_DONTCARE, info.fontName.value_or("Arial").c_str());
}

UINT alignmentFlag(const xplTextDrawingInfo& info) {
  switch (info.alignment.value_or(xplTextDrawingInfo::alignLeft)) {
    case xplTextDrawingInfo::alignCentered:
      return DT_CENTER;
    case xplTextDrawingInfo::alignRight:
      return DT_RIGHT;
    default:
      return DT_LEFT;
  }
}

}  // namespace

void xplDrawingToolsWinDC::fillEllipse(int left, int top, int right, int bottom, xplColor color) {
  const SelectedObject brush(m_target, CreateSolidBrush(platformColor(color)));
  Ellipse(m_target, left, top, right, bottom);
}

void xplDrawingToolsWinDC::fillRect(const RECT& rectangle, xplColor color) {
  const HBRUSH brush = CreateSolidBrush(platformColor(color));
  FillRect(m_target, &rectangle, brush);
  DeleteObject(brush);
}

void xplDrawingToolsWinDC::drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) {
  if (info.color) {
    SetTextColor(m_target, platformColor(*info.color));
  }
  const CharacterSpacing spacing(m_target, info.characterSpacing);
  const SelectedObject font(m_target, makeFont(m_target, info));
  RECT rectangle = {x, y, x, y};
  DrawTextA(m_target, text.c_str(), -1, &rectangle, alignmentFlag(info) | DT_NOCLIP | DT_NOPREFIX);
}

void xplDrawingToolsWinDC::getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width,
                                       int* height) {
  const CharacterSpacing spacing(m_target, info.characterSpacing);
  const SelectedObject font(m_target, makeFont(m_target, info));
  RECT rectangle = {0, 0, 0, 0};
  DrawTextA(m_target, text.c_str(), -1, &rectangle, DT_CALCRECT | DT_NOCLIP | DT_NOPREFIX);
  if (width != nullptr) {
    *width = rectangle.right - rectangle.left;
  }
  if (height != nullptr) {
    *height = rectangle.bottom - rectangle.top;
  }
}

// Deliberate: opaque red tells a developer who looks at the screen that there was nothing to read from.
xplColor xplDrawingToolsWinDC::getPixel(int x, int y) {
  if (m_target == nullptr) {
    return {255, 0, 0};
  }
  const COLORREF pixel = GetPixel(m_target, x, y);
  return {GetRValue(pixel), GetGValue(pixel), GetBValue(pixel)};
}

void xplDrawingToolsWinDC::setPixel(int x, int y, xplColor color) {
  if (m_target != nullptr) {
    SetPixel(m_target, x, y, platformColor(color));
  }
}

void xplDrawingToolsWinDC::drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) {
  if (m_target == nullptr) {
    return;
  }
  const SelectedObject pen(m_target, CreatePen(PS_SOLID, penWidth, platformColor(color)));
  MoveToEx(m_target, x1, y1, nullptr);
  LineTo(m_target, x2, y2);
}

void xplDrawingToolsWinDC::amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) {
  if (m_target != nullptr) {
    setPixel(x, y, amplified(getPixel(x, y), redFactor, greenFactor, blueFactor));
  }
}

void xplDrawingToolsWinDC::drawImage(int x, int y, const HDC& source, int width, int height,
                                     std::optional<xplColor> transparentColor) {
  if (m_target == nullptr) {
    return;
  }
  if (transparentColor) {
    TransparentBlt(m_target, x, y, width, height, source, 0, 0, width, height,
                   platformColor(*transparentColor));
  } else {
    BitBlt(m_target, x, y, width, height, source, 0, 0, SRCCOPY);
  }
}
