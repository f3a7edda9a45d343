// Takes the keyboard and the pointer for the full run, so that input reaches nobody else.
#pragma once

#include <optional>

#include "host/linux/fileDescriptor.h"
#include "host/linux/messagePump.h"
#include "host/linux/x11/x11Connection.h"

// Another program may hold them for a moment (a menu, a drag): then they are tried again for some seconds.
// What cannot be had is said in the log, and the run goes on.
class InputGrab {
 public:
  // The window must be on the screen before start(). All borrowed.
  InputGrab(X11Connection& connection, xcb_window_t window, MessagePump& pump);
  ~InputGrab();
  InputGrab(const InputGrab&) = delete;
  InputGrab& operator=(const InputGrab&) = delete;

  void start();
  // Looks for the display's answers; cheap. Call it whenever the display has said something.
  void collect();

 private:
  // One of the two devices.
  struct Device {
    const char* name;
    bool isHeld = false;
    std::optional<unsigned> request;  // the one that waits for an answer
    int attempts = 0;
  };

  void ask(Device& device);
  void hearAnswer(Device& device);
  void tryAgain();

  X11Connection& m_connection;
  xcb_window_t m_window;
  MessagePump& m_pump;
  FileDescriptor m_retryTimer;
  Device m_keyboard{.name = "keyboard", .request = {}};
  Device m_pointer{.name = "pointer", .request = {}};
};
