// What the compositor is told to do and asked: one line, one answer.
#include <cstdio>
#include <set>
#include <sstream>

#include "server.h"

namespace {

int colours(const Surface& surface) {
  return static_cast<int>(std::set<std::uint32_t>(surface.shown.begin(), surface.shown.end()).size());
}

void movePointer(Server& server, int x, int y) {
  if (server.surfaces.empty()) {
    return;
  }
  for (wl_resource* pointer : server.pointers) {
    if (server.isPointerInside) {
      wl_pointer_send_motion(pointer, 0, wl_fixed_from_int(x), wl_fixed_from_int(y));
    } else {
      wl_pointer_send_enter(pointer, ++server.serial, server.surfaces[0]->resource, wl_fixed_from_int(x),
                            wl_fixed_from_int(y));
    }
  }
  server.isPointerInside = true;
}

void leaveAll(Server& server) {
  wl_array none;
  wl_array_init(&none);
  for (wl_resource* keyboard : server.keyboards) {
    wl_keyboard_send_enter(keyboard, ++server.serial, server.surfaces[0]->resource, &none);
    wl_keyboard_send_leave(keyboard, ++server.serial, server.surfaces[0]->resource);
  }
  for (wl_resource* pointer : server.pointers) {
    wl_pointer_send_leave(pointer, ++server.serial, server.surfaces[0]->resource);
  }
  wl_array_release(&none);
  server.isPointerInside = false;
}

void closeFirst(Server& server) {
  const Surface& surface = *server.surfaces[0];
  surface.layer != nullptr ? zwlr_layer_surface_v1_send_closed(surface.layer)
                           : xdg_toplevel_send_close(surface.window);
}

void touch(Server& server) {
  for (wl_resource* screen : server.touches) {
    wl_touch_send_down(screen, ++server.serial, 0, server.surfaces[0]->resource, 0, wl_fixed_from_int(5),
                       wl_fixed_from_int(5));
  }
}

void press(Server& server, std::uint32_t key) {
  for (wl_resource* keyboard : server.keyboards) {
    wl_keyboard_send_key(keyboard, ++server.serial, 0, key, WL_KEYBOARD_KEY_STATE_PRESSED);
  }
}

// The answer to a question; empty where it is none.
std::string answerTo(const Server& server, const std::string& word) {
  if (word == "surfaces") {
    return std::to_string(server.surfaces.size());
  }
  if (word == "commits") {
    return std::to_string(server.commits);
  }
  if (word == "last-commits") {
    return server.surfaces.empty() ? "0" : std::to_string(server.surfaces.back()->commits);
  }
  if (word == "faults") {
    return std::to_string(server.torn) + " torn, " + std::to_string(server.untold) + " untold";
  }
  if (word == "cursor") {
    return server.cursor;
  }
  if (word == "colours") {
    std::string counts;
    for (const Surface* surface : server.surfaces) {
      counts += (counts.empty() ? "" : " ") + std::to_string(colours(*surface));
    }
    return counts;
  }
  return "";
}

// WIDTHxHEIGHT+X+Y; null where it is something else.
std::unique_ptr<Output> outputOf(const std::string& geometry) {
  auto output = std::make_unique<Output>();
  const int read =
      std::sscanf(geometry.c_str(), "%dx%d+%d+%d", &output->width, &output->height, &output->x, &output->y);
  return read == 4 ? std::move(output) : nullptr;
}

}  // namespace

void addOutput(Server& server, const std::string& geometry) {
  if (auto output = outputOf(geometry)) {
    server.outputs.push_back(std::move(output));
    offerOutput(server, *server.outputs.back());
  }
}

std::string obey(Server& server, const std::string& line) {
  std::istringstream words(line);
  std::string word;
  int first = 0;
  int second = 0;
  words >> word >> first >> second;
  if (const std::string answer = answerTo(server, word); !answer.empty()) {
    return answer;
  }
  if (word == "frames") {
    server.wantsFrames = first;
  } else if (word == "motion") {
    movePointer(server, first, second);
  } else if (word == "key") {
    press(server, static_cast<std::uint32_t>(first));
  } else if (word == "touch") {
    touch(server);
  } else if (word == "leave") {
    leaveAll(server);
  } else if (word == "close") {
    closeFirst(server);
  } else if (word == "remove") {
    wl_global_remove(server.outputs[static_cast<std::size_t>(first)]->global);
  } else if (word == "add") {
    addOutput(server, line.substr(line.find(' ') + 1));
  } else {
    return "unknown: " + line;
  }
  return "done";
}
