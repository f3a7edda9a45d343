// The connection to the X display: replies and events without ever waiting past a request to end.
#pragma once

#include <cstdlib>
#include <deque>
#include <memory>
#include <string>

#include <xcb/xcb.h>

class StopSignals;

struct FreeReply {
  void operator()(void* memory) const { std::free(memory); }  // xcb hands out memory of malloc
};
template <class T>
using X11Reply = std::unique_ptr<T, FreeReply>;
using X11Event = X11Reply<xcb_generic_event_t>;

class X11Connection {
 public:
  // Connects to the display that DISPLAY names; never throws for want of one.
  X11Connection();
  X11Connection(const X11Connection&) = delete;
  X11Connection& operator=(const X11Connection&) = delete;
  ~X11Connection();

  // False where there is no display, and once it has gone away.
  bool isUsable() const;
  // The name of the display as DISPLAY gives it; "" where it is not set.
  const std::string& displayName() const { return m_displayName; }

  xcb_connection_t* get() const { return m_connection; }
  const xcb_setup_t& setup() const { return *xcb_get_setup(m_connection); }
  // The screen that DISPLAY names. Only while the connection has been usable once.
  const xcb_screen_t& screen() const { return *m_screen; }
  // True when the display runs on this machine and memory can be handed to it.
  bool isLocal() const;

  // Waiting ends early when one of these signals arrives. Borrowed; must outlive the waiting.
  void endWaitsOn(StopSignals& signals) { m_stopSignals = &signals; }

  // The reply to a request; null where it failed, the display has gone, or the program is to end.
  template <class Reply, class Cookie>
  X11Reply<Reply> await(Cookie cookie) {
    return X11Reply<Reply>(static_cast<Reply*>(awaitReply(cookie.sequence)));
  }
  // Whether a checked request without a reply succeeded.
  bool succeeded(xcb_void_cookie_t cookie);

  // The next event that has arrived, also one put back; null where there is none yet.
  X11Event nextEvent();
  // The next event that has arrived; null where there is none yet. Those put back stay where they are.
  X11Event nextFreshEvent();
  void putBack(X11Event event) { m_putBack.push_back(std::move(event)); }

  // Waits until the display has sent something. False when it has gone, or the program is to end.
  bool waitForInput();

 private:
  void* awaitReply(unsigned sequence);

  std::string m_displayName;
  xcb_connection_t* m_connection;
  const xcb_screen_t* m_screen = nullptr;
  StopSignals* m_stopSignals = nullptr;
  std::deque<X11Event> m_putBack;
};
