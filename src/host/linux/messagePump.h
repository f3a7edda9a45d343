// The message flow of the saver's one window: posted messages, then timers, then paints.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "host/linux/windowKind.h"
#include "host/platform.h"

class RunStatistics;

// What the pump needs of the display behind the window.
class DisplayLink {
 public:
  virtual ~DisplayLink() = default;
  // Readable when the display has something to say; -1 where there is nothing to wait for.
  virtual int descriptor() const = 0;
  // Turns all that has arrived into messages. Called before the pump waits, so nothing may stay behind.
  virtual void collect() = 0;
  // False while the display still reads the last frame; what ends that makes the descriptor readable.
  virtual bool mayPaint() = 0;
  // False while nobody can see the window. The pump then does not wake for its timers: it looks at them once
  // a second, and hands out the ticks of that second together, so that the sky goes on, the hours strike and
  // what is timed ends, at next to no cost. What ends that makes the descriptor readable. mayPaint() is false
  // as long as this is.
  virtual bool isSeen() const { return true; }
  // True where nothing else is awaited from the display than that it is ready for another frame, which can
  // wait for the next tick of a timer. What the user does then waits as well, for 50 milliseconds at most.
  virtual bool canWaitForTick() const { return false; }
  // Sends what is still on its way to the display.
  virtual void flush() = 0;
};

class MessagePump {
 public:
  using Procedure = LRESULT(XPL_CALLBACK*)(xplWindowHandle, UINT, WPARAM, LPARAM);

  // There is one at a time; the seam's calls find it through current(). Everything is borrowed.
  MessagePump(xplWindowHandle window, WindowKind kind, Procedure procedure);
  ~MessagePump();
  MessagePump(const MessagePump&) = delete;
  MessagePump& operator=(const MessagePump&) = delete;
  // Null while there is none.
  static MessagePump* current();

  WindowKind kind() const { return m_kind; }

  // Hands a message to the procedure at once, and later, in the order of posting.
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  void post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

  // The window wants a WM_PAINT, or has had one.
  void invalidate() { m_isInvalid = true; }
  void validate() { m_isInvalid = false; }

  // Calls back while the descriptor is readable, until it is unwatched. The callback must read it empty.
  void watch(int descriptor, std::function<void()> onReadable);
  void unwatch(int descriptor);

  // Sends WM_DESTROY, once; the run ends with it.
  void destroyWindow();
  // The window or its display is not there any more: WM_DESTROY, and the run ends as a failure. One line for
  // the user.
  void windowIsGone(const std::string& why);
  // Ends run() after the message in hand.
  void quit() { m_hasQuit = true; }
  // Why the window went; empty where nothing was wrong.
  const std::string& failure() const { return m_failure; }

  // Counts the frames and their cost from now on; borrowed. Null: counts nothing any more.
  void measureWith(RunStatistics* statistics) { m_statistics = statistics; }

  // Runs the messages until quit().
  void run(DisplayLink& display);

  // Where the pointer was seen first, so that small movements end nothing.
  struct PointerStart {
    bool isKnown = false;
    int x = 0, y = 0;  // pixels
  };
  PointerStart pointerStart;

 private:
  struct Message {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
  };
  struct Watch {
    int descriptor;
    std::function<void()> onReadable;
  };

  LRESULT sendMeasured(UINT message, WPARAM wParam, LPARAM lParam);
  void dispatchNext();
  // Waits until something can be read or has ticked, for at most so many milliseconds (-1: for ever). True
  // when it was.
  bool waitAndCall(const DisplayLink& display, int milliseconds);
  void callWatch(int descriptor);
  // Posts WM_TIMER for each timer that has ticked: one for all its periods, or one for each of them, but
  // never more than `most`.
  void collectTicks(std::uint64_t most);

  xplWindowHandle m_window;
  WindowKind m_kind;
  Procedure m_procedure;
  std::deque<Message> m_messages;
  std::vector<Watch> m_watches;
  RunStatistics* m_statistics = nullptr;
  bool m_isInvalid = false;
  bool m_isDestroyed = false;
  bool m_hasQuit = false;
  std::string m_failure;
};
