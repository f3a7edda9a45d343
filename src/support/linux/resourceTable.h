// The table of resources that the build puts into a program; for findResource and its test.
#pragma once

#include <cstdint>

struct LunariaResource {
  const char* type;  // null ends the table
  std::uint64_t id;
  const std::uint8_t* data;
  std::uint64_t size;  // bytes
};

extern "C" const LunariaResource lunariaResourceTable[];
