// Makes the pictures of the full moon, from 50 to 300 pixels.
// Usage: make_moon FOLDER
#include <cstdio>
#include <exception>
#include <string>

#include "moonPicture.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_moon FOLDER\n", stderr);
    return 1;
  }
  try {
    const MoonMap map(600);
    for (const int size : {50, 100, 200, 300}) {
      writeBitmap(drawMoon(map, size), std::string(argv[1]) + "/moon-" + std::to_string(size) + ".bmp");
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_moon: %s\n", error.what());
    return 1;
  }
  return 0;
}
