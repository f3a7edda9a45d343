// A rectangle by its edges.
#pragma once

// Pixels; right and bottom are exclusive.
struct xplEdges {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};
