// A text with letters beyond ASCII in the narrow encoding of the platform.
#pragma once

extern const char* const accentedText;
