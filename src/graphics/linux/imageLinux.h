// The image on Linux: a surface in memory.
#pragma once

#include <memory>
#include <string>

#include "graphics/imageBase.h"
#include "graphics/linux/drawingToolsLinux.h"
#include "graphics/linux/surface.h"

class xplImageLinux : public xplImageBase {
 public:
  xplImageLinux();
  ~xplImageLinux() override;

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
  xplDrawingToolsLinux& tools() { return m_tools; }

 private:
  void hold(std::unique_ptr<Surface> bitmap);

  std::unique_ptr<Surface> m_bitmap;  // null until an init operation succeeds
  Surface* m_target = nullptr;        // the bitmap, or null
  xplDrawingToolsLinux m_tools;
};
