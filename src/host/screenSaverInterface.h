// What the window procedure needs of a screen saver.
#pragma once

#include <cstdint>
#include <string>

#include "host/platform.h"

// The order of the operations is fixed. All are called on the window's thread.
class xplScreenSaverInterface {
 public:
  xplScreenSaverInterface() = default;
  xplScreenSaverInterface(const xplScreenSaverInterface&) = delete;
  xplScreenSaverInterface& operator=(const xplScreenSaverInterface&) = delete;

  virtual ~xplScreenSaverInterface();
  // Binds the object to its window, which is borrowed and must outlive it, and builds what it shows.
  // monitorId: 0 in the normal run, -1 in the preview. May throw; what was made before then stays.
  virtual void initWithWindowHandle(xplWindowHandle windowHandle, std::int32_t monitorId) = 0;
  // Lets the user edit the settings; returns when that is over. The owner may be null.
  virtual void showConfigureSheet(xplWindowHandle parentWindow) = 0;
  // The folder that holds the program; set before initWithWindowHandle.
  virtual void setContainerFolder(const std::string& path) = 0;
  // Moves everything on by this many seconds.
  virtual void animateOneFrame(float seconds) = 0;
  // Renders the whole frame into the back buffer.
  virtual void drawOneFrame() = 0;
  // Copies the back buffer to the window.
  virtual void flushOneFrame() = 0;
  virtual void eraseBackground() = 0;
  // True while what the window showed before must stay visible.
  virtual bool getPreserveDesktopContents() = 0;
  virtual void setPreserveDesktopContents(bool preserve) = 0;
  // Monitors came, went or changed, while the window keeps its size for the saver.
  virtual void monitorsChanged() {}
  // Ends everything that it shows. Ticks and draws after it do nothing.
  virtual void shutDown() = 0;
  virtual bool hasConfigureSheet() = 0;
  // Pixels; 0 without a window.
  virtual int getWidth() = 0;
  virtual int getHeight() = 0;
};
