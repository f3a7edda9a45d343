// Looks at the fonts of the texts.
#include <algorithm>
#include <array>
#include <string_view>

#include "host/linux/doctor/checks.h"
#include "quotes/platform.h"

namespace {

struct Face {
  std::string name;
  const char* use;
  // The families whose letters are as wide as this face's.
  std::array<std::string_view, 3> equals;
};

Finding lookAt(SystemView& system, const Face& face) {
  const FontView font = system.fontFor(face.name);
  constexpr char cure[] = "sudo apt install fonts-liberation";
  if (font.family.empty()) {
    return {std::string("There is no font for ") + face.use + ": they will not show.", cure};
  }
  const bool isEqual = std::find(face.equals.begin(), face.equals.end(), font.family) != face.equals.end();
  if (!isEqual) {
    return {std::string("The font for ") + face.use + " should be " + face.name +
                ", or one with letters as wide, but is " + font.family +
                ": texts come out wider or narrower than they are meant.\n" + font.file,
            cure};
  }
  return {std::string("The font for ") + face.use + " is " + font.family + ".\n" + font.file, ""};
}

}  // namespace

Findings FontCheck::look(SystemView& system) {
  const std::array<Face, 3> faces{{
      {"Courier New", "the messages of stars", {"Courier New", "Liberation Mono", "Cousine"}},
      {"Arial", "the labels", {"Arial", "Liberation Sans", "Arimo"}},
      {quotesPlatform::faceName(), "the quotations", {"Times New Roman", "Liberation Serif", "Tinos"}},
  }};
  Findings findings;
  for (const Face& face : faces) {
    findings.push_back(lookAt(system, face));
  }
  return findings;
}
