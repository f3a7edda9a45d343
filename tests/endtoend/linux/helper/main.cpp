// Makes windows and grabs for the end-to-end tests, and looks at what a display shows.
#include <cstring>
#include <iostream>

#include "display.h"

namespace {

constexpr char usage[] =
    "Usage: x11_helper window WIDTHxHEIGHT+X+Y [DEPTH|input-only]  shows a window and prints its id; then "
    "obeys\n"
    "                                                             the lines destroy, resize WxH, end\n"
    "       x11_helper grab keyboard|pointer   holds it, and prints held, until its input ends\n"
    "       x11_helper pixels ID|root          prints a hash of the window's pixels, the number of colours "
    "and\n"
    "                                          the share of pixels that are not the most frequent one (in "
    "1/1000)\n"
    "       x11_helper cursor                  prints visible or hidden\n"
    "       x11_helper masks ID                prints the events that all programs together have selected\n"
    "       x11_helper cross SECONDS           looks at the middle column and row for so long; at each "
    "change "
    "it\n"
    "                                          prints the milliseconds, the column's dark pixels and the "
    "white "
    "ones\n"
    "                                          of row and column\n"
    "       x11_helper close ID                sends what a close button sends\n"
    "       x11_helper first-frame COMMAND...  starts the command on a screen of one colour and prints the\n"
    "                                          milliseconds until the screen changes\n";

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << usage;
    return 1;
  }
  const std::string task = argv[1];
  const Display display;
  if (task == "window" && argc > 2) {
    return showWindow(display, argv + 2, argc - 2);
  }
  if (task == "grab" && argc == 3) {
    return holdGrab(display, argv[2]);
  }
  if (task == "pixels" && argc == 3) {
    return tellPixels(display, argv[2]);
  }
  if (task == "cursor") {
    return tellCursor(display);
  }
  if (task == "masks" && argc == 3) {
    return tellMasks(display, argv[2]);
  }
  if (task == "cross" && argc == 3) {
    return watchCross(display, argv[2]);
  }
  if (task == "close" && argc == 3) {
    return askToClose(display, argv[2]);
  }
  if (task == "first-frame" && argc > 2) {
    return timeFirstFrame(display, argv + 2);
  }
  std::cerr << usage;
  return 1;
}
