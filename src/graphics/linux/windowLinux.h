// The window on Linux: a back buffer in memory over a native window that shows it.
#pragma once

#include <memory>
#include <string>

#include "graphics/linux/drawingToolsLinux.h"
#include "graphics/linux/nativeWindow.h"
#include "graphics/linux/surface.h"
#include "graphics/windowBase.h"

// Borrowed; null means no window.
using xplWindowHandle = xpliNativeWindow*;

class xplWindowLinux : public xplWindowBase {
 public:
  explicit xplWindowLinux(xplWindowHandle handle);
  ~xplWindowLinux() override;

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

  // Where drawing goes now; null without a native window. Waits until the display has read the last frame.
  // Whoever draws there calls drawn() afterwards.
  Surface* const& currentTarget();
  // Shows what was drawn straight to the window.
  void drawn() override;

 protected:
  xplDrawingToolsLinux& tools();

 private:
  void waitUntilShown();
  // Presents what has changed on a surface that tracks its changes.
  void show(Surface& surface);

  xplWindowHandle m_handle;
  xplEdges m_windowRect;                     // screen coordinates, read once
  std::unique_ptr<Surface> m_backBuffer;     // null without a native window
  std::unique_ptr<Surface> m_directSurface;  // null unless drawing goes straight to the window
  Surface* m_target = nullptr;
  bool m_isBeingShown = false;  // the display may still read what was presented last
  xplDrawingToolsLinux m_tools;
};
