// What the tests of the usage report share: a recording library, and a clock that runs when a test lets it.
#pragma once

#include <memory>
#include <string>

#include "harness/privateFolders.h"
#include "services/recordingServices.h"
#include "services/telemetryController.h"
#include "support/fileSystem.h"

class Telemetry : public PrivateFolders {
 protected:
  std::unique_ptr<cTelemetryController> makeController() {
    return std::make_unique<cTelemetryController>([this] {
      record.add("make");
      return std::make_unique<RecordingAnalytics>(record);
    });
  }
  // Lets the report run to its end.
  void runThrough() {
    auto controller = makeController();
    gate.open();
    record.waitFor("stop");
    controller.reset();
  }
  // The calls, the first words alone.
  Calls names() const {
    Calls names;
    for (const auto& call : record.calls()) {
      names.push_back(call.substr(0, call.find(' ')));
    }
    return names;
  }
  static std::string folder() {
    return xplFileSystemMini::joinPath(xplFileSystemMini::getFolderByKind(1), "Lunaria software");
  }
  int aborted(int point) const {
    return countEntries("telemetry TrackerBird Aborted. Point" + std::to_string(point), "Info");
  }

  AnalyticsRecord record;
  GatedClock gate{{1463865300, 0}};
  xplClock::Override gateOverride{gate};
};
