// Implements the layout of outputs on the picture.
#include "host/linux/wayland/outputLayout.h"

#include <algorithm>
#include <cmath>

#include "host/linux/wayland/pictureParts.h"

namespace {

constexpr int largestPicture = 32767;  // pixels a side; what a pointer's coordinates in a message can hold

int rounded(double value) {
  return static_cast<int>(std::lround(value));
}

// Compositors set scales in steps of 1/120; an output's own sizes tell them with an error of rounding.
double scaleOf(const OutputFacts& output) {
  constexpr double steps = 120;
  return std::max(std::round(output.realWidth() * steps / output.width()) / steps, 1 / steps);
}

// Whether the output's real pixels are those of this scale, but for rounding.
bool hasScale(const OutputFacts& output, double scale) {
  return std::abs(output.width() * scale - output.realWidth()) <= scale &&
         std::abs(output.height() * scale - output.realHeight()) <= scale;
}

bool containsOrigin(const OutputFacts& output) {
  return output.x <= 0 && output.y <= 0 && output.x + output.width() > 0 && output.y + output.height() > 0;
}

// The rectangle around all outputs, in logical pixels.
xplEdges boundsOf(const std::vector<OutputFacts>& outputs) {
  xplEdges bounds{outputs[0].x, outputs[0].y, outputs[0].x, outputs[0].y};
  for (const auto& output : outputs) {
    bounds.left = std::min(bounds.left, output.x);
    bounds.top = std::min(bounds.top, output.y);
    bounds.right = std::max(bounds.right, output.x + output.width());
    bounds.bottom = std::max(bounds.bottom, output.y + output.height());
  }
  return bounds;
}

}  // namespace

int OutputFacts::width() const {
  return std::max(logicalWidth.value_or(realWidth() / std::max(scale, 1)), 1);
}

int OutputFacts::height() const {
  return std::max(logicalHeight.value_or(realHeight() / std::max(scale, 1)), 1);
}

xplEdges PictureSpace::placeOf(const OutputFacts& output) const {
  const int left = rounded((output.x - originX) * scale);
  const int top = rounded((output.y - originY) * scale);
  if (hasScale(output, scale)) {
    return {left, top, left + output.realWidth(), top + output.realHeight()};
  }
  return {left, top, left + std::max(rounded(output.width() * scale), 1),
          top + std::max(rounded(output.height() * scale), 1)};
}

double commonScaleOf(const std::vector<OutputFacts>& outputs, bool canScale) {
  if (!canScale || outputs.empty()) {
    return 1;
  }
  const double scale = scaleOf(outputs[0]);
  const bool isCommon = std::all_of(outputs.begin(), outputs.end(),
                                    [&](const OutputFacts& output) { return hasScale(output, scale); });
  return isCommon ? scale : 1;
}

std::optional<OutputLayout> layOutOutputs(const std::vector<OutputFacts>& outputs, bool canScale) {
  if (outputs.empty()) {
    return std::nullopt;
  }
  const xplEdges bounds = boundsOf(outputs);
  OutputLayout layout;
  layout.space = {bounds.left, bounds.top, commonScaleOf(outputs, canScale)};
  for (const auto& output : outputs) {
    const xplEdges place = layout.space.placeOf(output);
    layout.width = std::min(std::max(layout.width, place.right), largestPicture);
    layout.height = std::min(std::max(layout.height, place.bottom), largestPicture);
  }
  layout.monitors = monitorsOn(layout.space, layout.width, layout.height, outputs);
  return layout;
}

std::vector<xplEdges> monitorsOn(const PictureSpace& space, int width, int height,
                                 const std::vector<OutputFacts>& outputs) {
  std::vector<xplEdges> monitors;
  bool hasMain = false;
  for (const auto& output : outputs) {
    const xplEdges seen = commonPart(space.placeOf(output), {0, 0, width, height});
    if (!isEmpty(seen)) {
      const bool isMain = !hasMain && containsOrigin(output);
      hasMain = hasMain || isMain;
      monitors.insert(isMain ? monitors.begin() : monitors.end(), seen);
    }
  }
  return monitors;
}
