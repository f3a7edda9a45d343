// lunaria-render: the program.
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "render/offscreenWindow.h"
#include "render/renderOptions.h"
#include "render/skyRun.h"

namespace {

void showProgress(int done, int all) {
  if (done % 25 == 0 || done == all) {
    std::fprintf(stderr, "\rframe %d of %d%s", done, all, done == all ? "\n" : "");
  }
}

}  // namespace

int main(int argc, char** argv) {
  const RenderRequest request = parseRenderOptions(std::vector<std::string>(argv + 1, argv + argc));
  if (!request.options) {
    std::fputs(request.message.c_str(), request.exitCode == 0 ? stdout : stderr);
    return request.exitCode;
  }
  const bool onTerminal = standardErrorIsTerminal();
  try {
    runSky(
        *request.options, [](const std::string& line) { std::puts(line.c_str()); },
        [onTerminal](int done, int all) {
          if (onTerminal) {
            showProgress(done, all);
          }
        });
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lunaria-render: %s\n", error.what());
    return 1;
  }
  return 0;
}
