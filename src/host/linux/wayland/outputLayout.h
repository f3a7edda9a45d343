// Lays the compositor's outputs out on the one picture that all of them show together.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "graphics/linux/edges.h"

// What the compositor tells of one output (a screen).
struct OutputFacts {
  std::uint32_t name = 0;  // the compositor's number for it
  int x = 0, y = 0;        // logical pixels, in the space that all outputs share
  int modeWidth = 0;       // real pixels, before the transform; 0 until it is told
  int modeHeight = 0;
  int transform = 0;  // as wl_output counts: the odd ones lie on their side
  int scale = 1;      // real pixels to a logical one; rounded up where there is a fraction
  // The size in logical pixels where the compositor tells it; otherwise it follows from mode and scale.
  std::optional<int> logicalWidth;
  std::optional<int> logicalHeight;

  bool isKnown() const { return modeWidth > 0 && modeHeight > 0; }
  // As the user sees it, turned.
  int realWidth() const { return transform % 2 == 0 ? modeWidth : modeHeight; }
  int realHeight() const { return transform % 2 == 0 ? modeHeight : modeWidth; }
  // Logical pixels, at least 1.
  int width() const;
  int height() const;
};

// How logical pixels become pixels of the picture. Kept for a whole run, as the picture is.
struct PictureSpace {
  int originX = 0, originY = 0;  // logical pixels: the picture's upper left corner
  double scale = 1;              // pixels of the picture to a logical one

  // Where an output lies on the picture, in its pixels; it may lie beyond the edges.
  xplEdges placeOf(const OutputFacts& output) const;
};

// The picture at the start of a run.
struct OutputLayout {
  PictureSpace space;
  int width = 0, height = 0;       // pixels of the picture, each in [1, 32767]
  std::vector<xplEdges> monitors;  // pixels of the picture, the main one first
};

// The picture covers all outputs, which must be known. It has real pixels where all outputs have one scale
// and surfaces can be scaled; otherwise it has logical ones, which the compositor enlarges. The main monitor
// is the one that contains the logical point (0, 0), or the first. Nothing where there is no output.
std::optional<OutputLayout> layOutOutputs(const std::vector<OutputFacts>& outputs, bool canScale);

// The places of these outputs on a picture of that space and size, as far as they lie on it, the main one
// first. Empty where none does.
std::vector<xplEdges> monitorsOn(const PictureSpace& space, int width, int height,
                                 const std::vector<OutputFacts>& outputs);

// Pixels of the picture to a logical one, if the picture is to have real pixels; 1 where that cannot be.
double commonScaleOf(const std::vector<OutputFacts>& outputs, bool canScale);
