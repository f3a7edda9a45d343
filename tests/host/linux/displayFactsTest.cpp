// Tests what is made of the display's answers.
#include <gtest/gtest.h>

#include "host/linux/x11/makeX11Window.h"
#include "host/linux/x11/x11Facts.h"

namespace {

using Edges = std::vector<int>;

std::vector<Edges> listOf(const std::vector<xplEdges>& monitors) {
  std::vector<Edges> list;
  for (const auto& monitor : monitors) {
    list.push_back({monitor.left, monitor.top, monitor.right, monitor.bottom});
  }
  return list;
}

TEST(DotsPerInch, AreReadFromTheResources) {
  EXPECT_EQ(dotsPerInchOf("Xft.dpi:\t144\n"), 144);
  EXPECT_EQ(dotsPerInchOf("Xft.antialias: 1\nXft.dpi: 120"), 120);
  EXPECT_EQ(dotsPerInchOf("Xft.dpi:96"), 96);
  EXPECT_EQ(dotsPerInchOf("Xft.dpi:\t109.6\n"), 110);
}

TEST(DotsPerInch, AreLeftOpenWhereTheResourcesSayNothing) {
  for (const char* text :
       {"", "Xft.dpi:", "Xft.dpi:\n", "Xft.dpi: abc", "myXft.dpi: 120", "xft.dpi: 120", "*Xft.dpi: 120"}) {
    EXPECT_EQ(dotsPerInchOf(text), std::nullopt) << text;
  }
}

TEST(DotsPerInch, OutsideWhatCanBeMeantAreNotTaken) {
  EXPECT_EQ(dotsPerInchOf("Xft.dpi: 24"), 24);
  EXPECT_EQ(dotsPerInchOf("Xft.dpi: 960"), 960);
  for (const char* text : {"Xft.dpi: 23", "Xft.dpi: 961", "Xft.dpi: -96", "Xft.dpi: nan", "Xft.dpi: inf"}) {
    EXPECT_EQ(dotsPerInchOf(text), std::nullopt) << text;
  }
}

TEST(MonitorsInside, AWindowOverEverythingAreAllOfThem) {
  EXPECT_EQ(listOf(monitorsInside({{1920, 0, 3840, 1080}, {0, 0, 1920, 1080}}, {0, 0, 3840, 1080})),
            (std::vector<Edges>{{1920, 0, 3840, 1080}, {0, 0, 1920, 1080}}));
}

TEST(MonitorsInside, AWindowOnOneOfThemAreThatOneInItsCoordinates) {
  EXPECT_EQ(listOf(monitorsInside({{0, 0, 1920, 1080}, {1920, 0, 3840, 1080}}, {1920, 0, 3840, 1080})),
            (std::vector<Edges>{{0, 0, 1920, 1080}}));
}

TEST(MonitorsInside, AWindowAcrossTwoOfThemAreItsTwoParts) {
  EXPECT_EQ(listOf(monitorsInside({{0, 0, 1920, 1080}, {1920, 0, 3840, 1080}}, {1900, 100, 2000, 200})),
            (std::vector<Edges>{{0, 0, 20, 100}, {20, 0, 100, 100}}));
}

TEST(MonitorsInside, AWindowOutsideAllOfThemIsItsOwn) {
  EXPECT_EQ(listOf(monitorsInside({{0, 0, 1920, 1080}}, {1920, 0, 1921, 5})),
            (std::vector<Edges>{{0, 0, 1, 5}}));
  EXPECT_EQ(listOf(monitorsInside({}, {-50, -60, 50, 40})), (std::vector<Edges>{{0, 0, 100, 100}}));
}

}  // namespace
