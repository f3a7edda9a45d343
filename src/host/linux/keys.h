// The keys that WM_KEYDOWN tells apart in its wParam; every other key comes as 0.
#pragma once

#include "host/platform.h"

inline constexpr WPARAM keyEscape = 0x1B;
inline constexpr WPARAM keyQ = 0x51;
