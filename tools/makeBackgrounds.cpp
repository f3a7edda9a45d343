// Makes the two pictured backgrounds of the sky.
// Usage: make_backgrounds FOLDER
#include <cstdio>
#include <exception>
#include <string>

#include "backgrounds.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_backgrounds FOLDER\n", stderr);
    return 1;
  }
  try {
    writeBitmap(makeGradient(), std::string(argv[1]) + "/background-blue-gradient.bmp");
    writeBitmap(makeStarryTile(), std::string(argv[1]) + "/background-starry-tiled.bmp");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make_backgrounds: %s\n", error.what());
    return 1;
  }
  return 0;
}
