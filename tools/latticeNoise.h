// Smooth random fields that are the same on every machine: hashes and plain arithmetic, nothing of a math
// library.
#pragma once

#include <cstdint>

// A well-mixed hash of three numbers.
std::uint32_t hashOf(std::uint32_t a, std::uint32_t b, std::uint32_t c);

// A value in [0, 1) for a lattice point.
double hashUnit(int x, int y, int seed);

// Smooth noise in [0, 1) over a lattice that repeats after periodX by periodY cells; x and y in cells.
double periodicNoise(double x, double y, int periodX, int periodY, int seed);
