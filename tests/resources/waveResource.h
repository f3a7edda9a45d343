// What each platform gives the tests of the sounds: the bytes that the program carries, and its own decoder.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

// The bytes of a sound among the program's resources, which live as long as the process; empty where there is
// none.
std::span<const std::uint8_t> waveResource(int id);

// The samples of a wave file as the platform's player hears them, in [-1, 1]; empty where it refuses the
// file.
std::vector<double> decodedByThePlatform(std::span<const std::uint8_t> file);
