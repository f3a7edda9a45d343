// Runs the sky without a display.
#include "render/skyRun.h"

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "graphics/window.h"
#include "render/frameWriter.h"
#include "render/offscreenWindow.h"
#include "support/clock.h"
#include "support/fileSystem.h"
#include "support/log.h"
#include "support/random.h"
#include "support/settings.h"
#include "world/noctisWorld.h"

namespace {

constexpr float stepInSeconds = 0.04F;
constexpr std::int64_t stepInMicroseconds = 40'000;
constexpr double stepsPerSecond = 25.0;

// Folders of the run's own, so that it reads and writes nothing of the user's; they go with the object.
class PrivateFolder {
 public:
  PrivateFolder()
      : m_path(std::filesystem::temp_directory_path() /
               ("lunaria-render-" + std::to_string(processNumber()))) {
    // A folder that was there already may be anybody's.
    if (!std::filesystem::create_directory(m_path)) {
      throw std::runtime_error("'" + m_path.string() + "' is in the way: remove it");
    }
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all);
    xplCloseSettings();
    xplFileSystemMini::redirectFolders(m_path.string());
  }
  ~PrivateFolder() {
    xplCloseSettings();
    xplFileSystemMini::redirectFolders("");
    std::error_code notRemoved;  // what is left lies in the temporary folder, which the system empties
    std::filesystem::remove_all(m_path, notRemoved);
  }
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  // Puts a copy of the user's file where the run looks for it.
  static void supply(const std::string& file, const std::string& name) {
    if (file.empty()) {
      return;
    }
    const auto folder = std::filesystem::path(xplFileSystemMini::getFolder_UserData()) / "Lunaria software";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    std::filesystem::copy_file(file, folder / name, std::filesystem::copy_options::overwrite_existing, error);
    if (error) {
      throw std::runtime_error("cannot read '" + file + "': " + error.message());
    }
  }

 private:
  std::filesystem::path m_path;
};

std::string lineOfHash(int frame, const std::vector<std::uint32_t>& pixels) {
  return stringFormat("%d %08x %016llx", frame, xplRandom::state(),
                      static_cast<unsigned long long>(hashOfFrame(pixels)));
}

// Gives one frame, counted from 0, to all who asked for it.
void handOut(int frame, const std::vector<std::uint32_t>& pixels, const RenderOptions& options,
             const std::function<void(const std::string&)>& printLine, FrameWriter& writer) {
  if (options.hashes) {
    printLine(lineOfHash(frame, pixels));
  }
  if (!options.output.empty()) {
    writer.write(frame, pixels);
  }
}

}  // namespace

void runSky(const RenderOptions& options, const std::function<void(const std::string&)>& printLine,
            const std::function<void(int, int)>& progress) {
  xplManualClock clock({options.time.value_or(xplClock::now()), 0});
  const xplClock::Override clockOverride(clock);
  const PrivateFolder folder;
  PrivateFolder::supply(options.settingsFile, "Lunaria screensaver.ini");
  PrivateFolder::supply(options.quotesFile, "userQuotes.txt");
  const xplLog log("Lunaria", false, false);
  xplRandom::seed(options.seed);

  OffscreenWindow native(options.width, options.height);
  xplWindow window(native.handle());
  // What the sky leaves open stays black: a window that is never shown may begin with a part of the screen.
  window.fillRect(xplRect<int>(0, 0, options.width, options.height), xplColor(0, 0, 0));
  const std::vector<xplRect<int>> monitors = {xplRect<int>(0, 0, options.width, options.height)};
  TnoctisWorld world(&window, options.preview ? -1 : 0, monitors, xplFileSystemMini::applicationFolder());
  world.initializeWorld();

  FrameWriter writer(options);
  const int written = options.frames.value_or(1);
  const int skipped = static_cast<int>(std::lround(options.atSeconds * stepsPerSecond));
  std::vector<std::uint32_t> pixels;
  for (int step = 0; step < skipped + written; ++step) {
    // At 0 seconds the sky is drawn as it was made; each later frame is one step on.
    if (step > 0) {
      world.update(stepInSeconds);
      clock.advance(stepInMicroseconds);
    }
    progress(step + 1, skipped + written);
    if (step < skipped) {
      continue;
    }
    world.draw();
    window.flush();
    native.readFrame(window, pixels);
    handOut(step - skipped, pixels, options, printLine, writer);
  }
}
