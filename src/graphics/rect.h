// A rectangle by its top-left corner and size; right and bottom are exclusive edges.
#pragma once

#include "graphics/wrapping.h"

// What the edges of a rectangle of T are computed in: float edges are widened, as callers compare them in
// double.
template <class T>
struct xplEdgeOf {
  using type = T;
};
template <>
struct xplEdgeOf<float> {
  using type = double;
};

// T is int (pixels) or float (pixels). The four operations are virtual because sprites carry them as their
// first slots; there is no virtual destructor, so never delete through this class.
template <class T>
class xplRect {
 public:
  xplRect() = default;
  xplRect(T aTop, T aLeft, T aWidth, T aHeight) : top(aTop), left(aLeft), width(aWidth), height(aHeight) {}

  virtual typename xplEdgeOf<T>::type getBottom() const { return wrappingSum(top, height); }
  virtual typename xplEdgeOf<T>::type getRight() const { return wrappingSum(left, width); }
  virtual void setBottom(T bottom) { height = wrappingDifference(bottom, top); }  // top stays
  virtual void setRight(T right) { width = wrappingDifference(right, left); }     // left stays

  T top{};
  T left{};
  T width{};
  T height{};
};
