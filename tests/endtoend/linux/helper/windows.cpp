// The helper's windows and grabs, as another program would have them.
#include <array>
#include <cstdio>
#include <cstring>
#include <iostream>

#include "display.h"

namespace {

// A visual of true colours at this depth.
xcb_visualid_t visualOf(const Display& display, int depth) {
  for (auto list = xcb_screen_allowed_depths_iterator(&display.screen()); list.rem > 0;
       xcb_depth_next(&list)) {
    for (auto visual = xcb_depth_visuals_iterator(list.data); visual.rem > 0; xcb_visualtype_next(&visual)) {
      if (list.data->depth == depth && visual.data->_class == XCB_VISUAL_CLASS_TRUE_COLOR) {
        return visual.data->visual_id;
      }
    }
  }
  fail("no visual of this depth");
}

void obeyInput(const Display& display, xcb_window_t window) {
  for (std::string line; std::getline(std::cin, line) && line != "end";) {
    int width = 0;
    int height = 0;
    if (line == "destroy") {
      display.check(xcb_destroy_window_checked(display.get(), window), "destroy");
    } else if (std::sscanf(line.c_str(), "resize %dx%d", &width, &height) == 2) {
      const std::array<std::uint32_t, 2> size{static_cast<std::uint32_t>(width),
                                              static_cast<std::uint32_t>(height)};
      display.check(
          xcb_configure_window_checked(display.get(), window,
                                       XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data()),
          "resize");
    } else {
      fail("unknown line " + line);
    }
    std::cout << "done" << std::endl;
  }
}

}  // namespace

int showWindow(const Display& display, Words words, int count) {
  int width = 0;
  int height = 0;
  int x = 0;
  int y = 0;
  if (std::sscanf(words[0], "%dx%d+%d+%d", &width, &height, &x, &y) != 4) {
    fail("no geometry");
  }
  const bool inputOnly = count > 1 && std::strcmp(words[1], "input-only") == 0;
  const int depth = count > 1 && !inputOnly ? std::atoi(words[1]) : display.screen().root_depth;
  const xcb_visualid_t visual = inputOnly ? XCB_COPY_FROM_PARENT : visualOf(display, depth);
  const xcb_window_t window = xcb_generate_id(display.get());
  const xcb_colormap_t colours = xcb_generate_id(display.get());
  constexpr std::uint32_t red = 0xF800;  // some red at every depth, never black
  if (inputOnly) {
    display.check(xcb_create_window_checked(
                      display.get(), 0, window, display.screen().root, static_cast<std::int16_t>(x),
                      static_cast<std::int16_t>(y), static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height), 0, XCB_WINDOW_CLASS_INPUT_ONLY, visual, 0, nullptr),
                  "window");
  } else {
    display.check(xcb_create_colormap_checked(display.get(), XCB_COLORMAP_ALLOC_NONE, colours,
                                              display.screen().root, visual),
                  "colour map");
    const std::array<std::uint32_t, 3> values{red, red, colours};
    display.check(
        xcb_create_window_checked(
            display.get(), static_cast<std::uint8_t>(depth), window, display.screen().root,
            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), static_cast<std::uint16_t>(width),
            static_cast<std::uint16_t>(height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
            XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_COLORMAP, values.data()),
        "window");
  }
  display.check(xcb_map_window_checked(display.get(), window), "map");
  std::cout << "0x" << std::hex << window << std::dec << std::endl;
  obeyInput(display, window);
  return 0;
}

int holdGrab(const Display& display, const std::string& device) {
  constexpr auto async = XCB_GRAB_MODE_ASYNC;
  const xcb_window_t root = display.screen().root;
  std::uint8_t status = 0;
  if (device == "keyboard") {
    const Reply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(
        display.get(), xcb_grab_keyboard(display.get(), 0, root, XCB_CURRENT_TIME, async, async), nullptr));
    status = reply ? reply->status : 99;
  } else {
    const Reply<xcb_grab_pointer_reply_t> reply(
        xcb_grab_pointer_reply(display.get(),
                               xcb_grab_pointer(display.get(), 0, root, XCB_EVENT_MASK_BUTTON_PRESS, async,
                                                async, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
                               nullptr));
    status = reply ? reply->status : 99;
  }
  if (status != XCB_GRAB_STATUS_SUCCESS) {
    std::cout << "refused" << std::endl;
    return 2;
  }
  std::cout << "held" << std::endl;
  for (std::string line; std::getline(std::cin, line);) {
  }
  return 0;
}

int askToClose(const Display& display, const std::string& window) {
  const auto atom = [&](const char* name) {
    const auto cookie =
        xcb_intern_atom(display.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    return Reply<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(display.get(), cookie, nullptr))->atom;
  };
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = windowOf(display, window);
  event.type = atom("WM_PROTOCOLS");
  event.data.data32[0] = atom("WM_DELETE_WINDOW");
  display.check(
      xcb_send_event_checked(display.get(), 0, event.window, 0, reinterpret_cast<const char*>(&event)),
      "close");
  return 0;
}
