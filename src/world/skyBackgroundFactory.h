// Makes the background that the user chose.
#pragma once

#include <memory>

#include "world/skyBackground.h"

class cSkyBackgroundFactory {
 public:
  // 0 black, 1 dark blue, 2 the gradient, anything else the starry tile. Never null.
  static std::unique_ptr<cSkyBackground> create();
};
