// A library in the vendor's place that notes its calls in its cache folder; built for the tests alone.
#include <cstdint>
#include <fstream>
#include <string>

#if defined(_WIN32)
#define RECORDER_EXPORT extern "C" __declspec(dllexport)
#else
#define RECORDER_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

std::string& file() {
  static std::string path;
  return path;
}

// Only the plain characters of the tests.
std::string narrow(const wchar_t* text) {
  std::string result;
  for (; *text != L'\0'; ++text) {
    result += static_cast<char>(*text);
  }
  return result;
}

int note(const std::string& call) {
  std::ofstream(file(), std::ios::app | std::ios::binary) << call << "\n";
  return 0;
}

}  // namespace

RECORDER_EXPORT int tbSetFilePath(const wchar_t* folder) {
  file() = narrow(folder) + "/calls.txt";
  return note("tbSetFilePath");
}

RECORDER_EXPORT int tbCreateConfig(const wchar_t* address, const wchar_t* productId, const wchar_t* version,
                                   const wchar_t* build, bool collectsMore) {
  return note("tbCreateConfig " + narrow(address) + " " + narrow(productId) + " " + narrow(version) + " " +
              narrow(build) + (collectsMore ? " true" : " false"));
}

RECORDER_EXPORT int tbStart(int session) {
  return note("tbStart " + std::to_string(session));
}

RECORDER_EXPORT int tbStop(int session) {
  return note("tbStop " + std::to_string(session));
}
