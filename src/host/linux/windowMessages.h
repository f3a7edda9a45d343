// The names of the window messages on Linux, where our own framework sends them.
#pragma once

#include <cstdint>

// A window procedure is an ordinary function here.
#define XPL_CALLBACK

using UINT = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_ERASEBKGND = 0x0014;
inline constexpr UINT WM_DISPLAYCHANGE = 0x007E;  // monitors came, went or changed
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;  // lParam: x in the low 16 bits, y in the next, of the window
// The pointer did not move by itself, but was put there: in the wParam of WM_MOUSEMOVE, which is 0 otherwise.
inline constexpr WPARAM pointerWasPut = 1;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;  // any button; the saver does not tell them apart
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;

// A paint has nothing to keep: presenting the back buffer is all there is to it.
struct xplPaintData {};
