// Starts the compositor and does what it is told.
// Usage: wayland_helper [output WIDTHxHEIGHT+X+Y]... [without THING]...  prints the name of its socket in
// XDG_RUNTIME_DIR, then answers each line on standard input with one line. THING: surfaces, memory, layers,
// windows.
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <set>

#include <unistd.h>

#include "server.h"

namespace {

constexpr int frameTime = 16;  // milliseconds

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
  sendFrameCallbacks(server);
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
