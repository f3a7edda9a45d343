// A connection for the helper's subcommands; whatever fails ends the helper with a line that says so.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include <xcb/xcb.h>

struct FreeMemory {
  void operator()(void* memory) const { std::free(memory); }
};
template <class T>
using Reply = std::unique_ptr<T, FreeMemory>;

class Display {
 public:
  Display();
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  xcb_connection_t* get() const { return m_connection; }
  const xcb_screen_t& screen() const { return *m_screen; }
  void check(xcb_void_cookie_t cookie, const char* what) const;

 private:
  xcb_connection_t* m_connection;
  const xcb_screen_t* m_screen;
};

[[noreturn]] void fail(const std::string& what);
// A number, decimal or with 0x; "root" is the root window.
std::uint32_t windowOf(const Display& display, const std::string& text);

using Words = const char* const*;
int showWindow(const Display& display, Words words, int count);
int holdGrab(const Display& display, const std::string& device);
int tellPixels(const Display& display, const std::string& window);
int tellCursor(const Display& display);
int tellMasks(const Display& display, const std::string& window);
int watchCross(const Display& display, const std::string& seconds);
int askToClose(const Display& display, const std::string& window);
int timeFirstFrame(const Display& display, char** command);
