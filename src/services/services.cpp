// Puts the services of the platform together.
#include "services/services.h"

#include "services/builtInAnalytics.h"
#include "services/platform.h"
#include "services/vendorAnalytics.h"

xplServices xplServices::ofPlatform() {
  xplServices services;
  services.makeSoundOutput = xplMakeSoundOutput;
  services.makeKeepAwake = xplMakeKeepAwake;
  services.makeAnalytics = [](const std::string& programFolder) -> std::unique_ptr<xpliAnalytics> {
    if (auto vendors = VendorAnalytics::load(programFolder)) {
      return vendors;
    }
    return std::make_unique<BuiltInAnalytics>();
  };
  return services;
}

// Each run keeps the computer awake on its own: twice does no harm, and no run depends on another's end.
xplServices xplServices::besideAnotherRun() const {
  xplServices services;
  services.makeKeepAwake = makeKeepAwake;
  return services;
}
