// Sums and differences of coordinates that may leave the range of int.
#pragma once

#include <type_traits>

// Whole numbers wrap around at the ends of their range, as the platform's own arithmetic does; others do not.
template <class T>
constexpr T wrappingSum(T a, T b) {
  if constexpr (std::is_integral_v<T>) {
    using Unsigned = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<Unsigned>(a) + static_cast<Unsigned>(b));
  } else {
    return a + b;
  }
}

template <class T>
constexpr T wrappingDifference(T a, T b) {
  if constexpr (std::is_integral_v<T>) {
    using Unsigned = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<Unsigned>(a) - static_cast<Unsigned>(b));
  } else {
    return a - b;
  }
}
