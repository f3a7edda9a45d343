// The window on Windows: a GDI back buffer over a native window.
#pragma once

#include <string>

#include "graphics/windowBase.h"
#include "graphics/windows/drawingToolsWinDC.h"

using xplWindowHandle = HWND;

class xplWindowWin : public xplWindowBase {
 public:
  explicit xplWindowWin(xplWindowHandle handle);
  ~xplWindowWin() override;

  void flush() override;
  void fillWindow(xplColor color) override;
  void fillRect(const xplRect<int>& rectangle, xplColor color) override;
  void fillEllipse(int left, int top, int right, int bottom, xplColor color) override;
  void drawLine(int x1, int y1, int x2, int y2, int penWidth, xplColor color) override;
  int getWidth() override;
  int getHeight() override;
  int getTop() override;
  int getLeft() override;
  void getTextSize(const std::string& text, int* width, int* height) override;
  void setUseBackBuffer(bool use) override;

  // Where drawing goes now: the back buffer's context or the window's.
  const HDC& currentTarget() const { return m_target; }

 protected:
  // For drawing on the current target, and for reading from it.
  xplDrawingToolsWinDC& tools();

 private:
  void takeContent();
  void showTakenContent();

  xplWindowHandle m_handle;
  RECT m_windowRect{};                   // screen coordinates, read once
  HDC m_windowContext = nullptr;         // released by the destructor
  HDC m_backBufferContext = nullptr;     // owned
  HBITMAP m_backBufferBitmap = nullptr;  // owned
  HGDIOBJ m_previousBitmap = nullptr;    // put back before the context is deleted
  HDC m_target = nullptr;
  // The back buffer holds what was on the screen at the window's place, and the window does not show it yet.
  bool m_isContentUnshown = false;
  xplDrawingToolsWinDC m_tools;
};
