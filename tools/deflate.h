// Compression as PNG files hold it; the same bytes on every machine, whatever libraries it has.
#pragma once

#include <string>
#include <string_view>

// The bytes as a zlib stream: repeats are found by hashing, and written with the fixed code.
std::string zlibStream(std::string_view bytes);
