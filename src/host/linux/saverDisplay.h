// What the saver's run needs of a display, whichever kind it is: X11 or Wayland.
//
// Whoever adds another kind supplies a display that makes a stage, and the stage's window and link. They are
// used in this order: open(), window(), kind(), mode() and isQuiet(), then the window gets its WM_CREATE,
// then show(), and the link works until the run ends. The link goes first, then the stage, then the display.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "graphics/linux/nativeWindow.h"
#include "host/linux/commandLine.h"
#include "host/linux/messagePump.h"
#include "host/linux/stopSignals.h"
#include "host/linux/windowKind.h"

// The saver's window on a display.
class SaverStage {
 public:
  struct Point {
    int x, y;  // pixels of the window
  };

  virtual ~SaverStage() = default;
  virtual xpliNativeWindow& window() = 0;
  virtual WindowKind kind() const = 0;
  // What the run is: the mode that was asked for, or another where the display knows better.
  virtual HostRequest::Mode mode() const = 0;
  // True where the sounds and the usage report are those of another run, started beside this one.
  virtual bool isQuiet() const = 0;
  // Puts the window on the screen and listens to the input. Pump and signals are borrowed.
  virtual std::unique_ptr<DisplayLink> show(MessagePump& pump, StopSignals& signals) = 0;
  // Where the pointer stood when the stage was made; nothing where the display tells it later by itself.
  virtual std::optional<Point> pointer() const = 0;
};

class SaverDisplay {
 public:
  virtual ~SaverDisplay() = default;
  // As the environment gives it, such as ":0" or "wayland-1".
  virtual const std::string& name() const = 0;
  // Makes the window that is asked for. The display must outlive the stage. Null where one of the signals
  // came before it was there; throws HostFailure where it cannot be had. Waiting ends with a signal, from now
  // on for as long as the display lives: the signals are borrowed.
  virtual std::unique_ptr<SaverStage> open(const HostRequest& request, StopSignals& signals) = 0;
};
