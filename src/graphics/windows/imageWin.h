// The image on Windows: a bitmap in a memory device context.
#pragma once

#include <string>

#include "graphics/imageBase.h"
#include "graphics/windows/drawingToolsWinDC.h"

class xplImageWin : public xplImageBase {
 public:
  xplImageWin();
  ~xplImageWin() override;

  void initWithSizeAndColor(int width, int height, xplColor color) override;
  bool initWithResource(int id) override;
  void amplifyPixel(int x, int y, float redFactor, float greenFactor, float blueFactor) override;
  int getWidth() override;
  int getHeight() override;
  void drawText(int x, int y, const std::string& text, const xplTextDrawingInfo& info) override;
  // The size in pixels that drawText would take; either out argument may be null.
  void getTextSize(const std::string& text, const xplTextDrawingInfo& info, int* width, int* height);
  void drawOnWindow(xplWindow& window, int x, int y) override;
  void crop_impl(int x, int y, int width, int height) override;
  void resizeTo_impl(int width, int height) override;
  bool initWithFile_impl(const std::string& filename) override;

 protected:
  xplDrawingToolsWinDC& tools() { return m_tools; }

 private:
  // Takes the bitmap over and deletes the one held before.
  void hold(HBITMAP bitmap);
  // Holds a new bitmap of this size with the source's picture; false where there is none to be had.
  bool takeOver(HDC source, int width, int height);
  void readSize();

  HDC m_hDC = nullptr;                 // owned
  HBITMAP m_GDIHBitmap = nullptr;      // owned; null until an init operation succeeds
  HGDIOBJ m_previousBitmap = nullptr;  // put back before the context is deleted
  int m_width = -1;                    // pixels; -1 until read from the bitmap
  int m_height = -1;
  xplDrawingToolsWinDC m_tools;
};
