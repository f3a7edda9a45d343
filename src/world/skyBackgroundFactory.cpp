// Makes the background that the user chose.
#include "world/skyBackgroundFactory.h"

#include "support/log.h"
#include "support/settingsGroups.h"

namespace {

constexpr xplColor baseNightBlue(0, 0, 139);

}  // namespace

std::unique_ptr<cSkyBackground> cSkyBackgroundFactory::create() {
  const logTimeCountrer block("cSkyBackgroundFactory.create()");
  switch (cAppSettings().background.read()) {
    case 0:
      return std::make_unique<cSkyBackground_SolidColor>(baseNightBlue.scaledBy(0.15F));
    case 1:
      return std::make_unique<cSkyBackground_SolidColor>(baseNightBlue.scaledBy(0.3F));
    case 2:
      return std::make_unique<cSkyBackground_ImageStretched>();
    default:
      return std::make_unique<cSkyBackground_ImageTiled>();
  }
}
