// Runs the sky without a display, with a clock that follows the frames, and hands out its frames.
#pragma once

#include <functional>
#include <string>

#include "render/renderOptions.h"

// Draws what the options ask for. Lines of --hashes go to `printLine`, progress (frames done, frames in all)
// to `progress`. Throws std::runtime_error with a text for the user where a file cannot be read or written.
void runSky(const RenderOptions& options, const std::function<void(const std::string&)>& printLine,
            const std::function<void(int, int)>& progress);
