// The part of a screen saver that knows its window, the monitors and the program's folder.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "graphics/rect.h"
#include "graphics/window.h"
#include "host/screenSaverInterface.h"
#include "support/log.h"

class xplScreenSaverAbstract : public xplScreenSaverInterface {
 public:
  // Logs the program's name and version.
  xplScreenSaverAbstract();
  ~xplScreenSaverAbstract() override;

  // Makes the xplWindow (once; a null handle is logged and gives one without size) and lists the monitors.
  void initWithWindowHandle(xplWindowHandle windowHandle, std::int32_t monitorId) override;
  void setContainerFolder(const std::string& path) override { m_containerFolder = path; }
  void flushOneFrame() override;
  // Lists the monitors anew; the list stays as it is where the platform cannot tell them.
  void monitorsChanged() override;
  bool getPreserveDesktopContents() override { return mPreserveDeskopContents; }
  void setPreserveDesktopContents(bool preserve) override { mPreserveDeskopContents = preserve; }
  void shutDown() override {}
  int getWidth() override;
  int getHeight() override;

  // Frames a second for which the animation is made.
  int targetFrameRate = 25;

 private:
  logObjectLife m_life{"xplScreenSaverAbstract"};

 protected:
  // Null before the first initialisation.
  xplWindow* window() { return m_window.get(); }
  const std::string& containerFolder() const { return m_containerFolder; }

  // In screen coordinates, in the platform's order. Every initialisation appends to it.
  std::vector<xplRect<int>> m_MonitorList;

 private:
  void bindWindow(xplWindowHandle windowHandle);
  void listMonitors(xplWindowHandle windowHandle);

  std::unique_ptr<xplWindow> m_window;
  xplWindowHandle m_windowHandle = nullptr;  // of the last initialisation
  bool m_ownsWindow = false;                 // set when an initialisation has come to its end

 protected:
  // The log names it so, too: the spelling stays.
  bool mPreserveDeskopContents = false;

 private:
  std::string m_containerFolder;  // where the program's own file lies
};
