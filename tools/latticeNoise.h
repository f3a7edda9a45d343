// Random fields that are the same on every machine: hashes and plain arithmetic, nothing of a math library.
#pragma once

#include <cstdint>

// A well-mixed hash of three numbers.
std::uint32_t hashOf(std::uint32_t a, std::uint32_t b, std::uint32_t c);

// A value in [0, 1) for a lattice point.
double hashUnit(int x, int y, int seed);

// Grain for dithering at a pixel, around 0 within (-1, 1), nearly always within half of that. It has little
// of the coarse mottling of plain chance: what a pixel has too much its neighbours have too little. It
// repeats after periodX by periodY pixels.
double grain(int x, int y, int periodX, int periodY, int seed);

// Smooth noise around 0, within (-1, 1), over a lattice that repeats after periodX by periodY cells; x and y
// in cells.
double periodicNoise(double x, double y, int periodX, int periodY, int seed);
