// Wave files as the platforms' sound players take them: a RIFF file with a format, a length and the samples.
#pragma once

#include <string>

#include "sounds/track.h"

// Both throw std::runtime_error with the file's name where it cannot be written. Samples lie in (-1, 1).

// Eight bits a sample, unsigned; 128 is silence.
void writePcm8(const Track& track, const std::string& filename);

// Microsoft ADPCM. The track's length is a whole number of blocks (see wholeBlocks), so that no player
// appends silence, which one would hear where a loop repeats.
void writeAdpcm(const Track& track, const std::string& filename);

// The length in samples that is nearest to the given seconds and fills its last block.
std::size_t wholeBlocks(double seconds, int rate);
