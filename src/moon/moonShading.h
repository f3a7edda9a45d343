// How bright each pixel of the moon's picture is at a phase, and the darkening of the picture by it.
#pragma once

#include <cstdint>

class xplImage;

// The factor in [0, 1] for the pixel (x, y) of a square picture of this width (pixels), with its disc in the
// middle; 0 outside the disc. phase: degrees since the full moon, in (-360, 360).
// The same on every platform: see moonShadingTest.cpp.
float moonPixelIllumination(int x, int y, float width, std::int32_t phase);

// Darkens a picture of this size (pixels) in place: red and green by the pixel's factor, blue to no less than
// three tenths, which gives the dark side its blue tint.
void shadeMoon(xplImage& image, float width, float height, std::int32_t phase);
