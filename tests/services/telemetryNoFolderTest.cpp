// The usage report where the platform cannot tell the folder for its file.
#include <filesystem>

#include "services/builtInAnalytics.h"
#include "services/telemetryFixture.h"

namespace {

// The steps, on this thread.
class Steps : public cTelemetryDoAllSteps_Trackerbird {
 public:
  using cTelemetryDoAllSteps_Trackerbird::doAllSteps;
};

// The program is started in a folder of its own, in which nothing is to appear.
class ReportWithoutFolder : public Telemetry {
 protected:
  ReportWithoutFolder() {
    std::filesystem::create_directory(startFolder);
    std::filesystem::current_path(startFolder);
  }
  ~ReportWithoutFolder() override { std::filesystem::current_path(folderBefore); }

  const std::filesystem::path folderBefore = std::filesystem::current_path();
  const std::string startFolder = xplFileSystemMini::joinPath(root(), "started here");
};

TEST_F(ReportWithoutFolder, HasNoCacheFolder) {
  EXPECT_EQ(cTelemetryController::cacheFolderIn(""), "");
}

TEST_F(ReportWithoutFolder, IsOneWarningAndNoFileAnywhere) {
  gate.open();
  Steps().doAllSteps([] { return std::make_unique<BuiltInAnalytics>(); },
                     cTelemetryController::cacheFolderIn(""));
  EXPECT_EQ(countEntries("TB invalid path:", "Warning"), 1);
  EXPECT_EQ(countEntriesWith("TB "), 1);
  EXPECT_EQ(countEntriesWith("#7592a"), 0);
  EXPECT_EQ(filesIn(startFolder), std::vector<std::string>());
}

}  // namespace
