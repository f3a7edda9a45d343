// Starts the compositor and does what it is told.
// Usage: wayland_helper [output WIDTHxHEIGHT+X+Y]... [without THING]...  prints the name of its socket in
// XDG_RUNTIME_DIR, then answers each line on standard input with one line. THING: surfaces, memory, layers,
// windows.
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <set>
#include <sstream>

#include <unistd.h>

#include "server.h"

namespace {

constexpr int frameTime = 16;  // milliseconds

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
    server.sendsFrames = first != 0;
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

int readLine(int, std::uint32_t, void* data) {
  auto& server = *static_cast<Server*>(data);
  std::string line;
  if (!std::getline(std::cin, line)) {
    wl_display_terminate(server.display);
    return 0;
  }
  std::cout << obey(server, line) << std::endl;
  return 0;
}

int sendFrames(void* data) {
  auto& server = *static_cast<Server*>(data);
  if (server.sendsFrames) {
    sendFrameCallbacks(server);
  }
  wl_event_source_timer_update(server.timer, frameTime);
  return 0;
}

void readArguments(Server& server, int count, char** arguments, std::set<std::string>& without) {
  for (int i = 1; i + 1 < count; i += 2) {
    if (arguments[i] == std::string("without")) {
      without.insert(arguments[i + 1]);
    } else {
      addOutput(server, arguments[i + 1]);
    }
  }
}

void offer(Server& server, const std::set<std::string>& without) {
  if (!without.contains("surfaces")) {
    offerCompositor(server);
  }
  if (!without.contains("memory")) {
    wl_display_init_shm(server.display);
  }
  if (!without.contains("layers")) {
    offerLayers(server);
  }
  if (!without.contains("windows")) {
    offerWindows(server);
  }
  offerSeat(server);
}

}  // namespace

int main(int argc, char** argv) {
  // Each line is its own: what has been read ahead would not wake the loop.
  std::setvbuf(stdin, nullptr, _IONBF, 0);
  Server server;
  std::set<std::string> without;
  server.display = wl_display_create();
  readArguments(server, argc, argv, without);
  const char* const socket = wl_display_add_socket_auto(server.display);
  if (socket == nullptr) {
    std::cerr << "there is no socket to be had in XDG_RUNTIME_DIR\n";
    return EXIT_FAILURE;
  }
  offer(server, without);
  wl_event_loop* const loop = wl_display_get_event_loop(server.display);
  wl_event_loop_add_fd(loop, STDIN_FILENO, WL_EVENT_READABLE, readLine, &server);
  server.timer = wl_event_loop_add_timer(loop, sendFrames, &server);
  wl_event_source_timer_update(server.timer, frameTime);
  std::cout << socket << std::endl;
  wl_display_run(server.display);
  wl_display_destroy_clients(server.display);
  wl_display_destroy(server.display);
  return EXIT_SUCCESS;
}
