// What is seen of an airplane with its light off and on, also at the edges.
#include <limits>

#include "airplaneFixture.h"

namespace {

constexpr xplColor grey(192, 192, 192);
constexpr xplColor red(255, 0, 0);

}  // namespace

TEST_F(Airplanes, AreTwoGreyPixelsWhileTheLightIsOff) {
  makeWindow(12, 9);
  makeAirplaneAt(5.9F, 3.9F, false)->draw();
  expectOnly({{5, 3}, {6, 3}}, grey);
}

TEST_F(Airplanes, AreASmallRedRectangleWhileTheLightIsOn) {
  makeWindow(12, 9);
  makeAirplaneAt(5.9F, 3.9F, true)->draw();
  expectOnly({{4, 2}, {5, 2}, {6, 2}, {4, 3}, {5, 3}, {6, 3}}, red);
}

TEST_F(Airplanes, AreCutOffAtTheEdges) {
  makeWindow(6, 5);
  makeAirplaneAt(5.0F, 4.0F, false)->draw();
  expectOnly({{5, 4}}, grey);
  makeWindow(6, 5);
  makeAirplaneAt(-1.0F, 0.0F, false)->draw();
  expectOnly({{0, 0}}, grey);
  makeWindow(6, 5);
  makeAirplaneAt(0.0F, 0.0F, true)->draw();
  expectOnly({{0, 0}, {1, 0}}, red);
  makeWindow(6, 5);
  makeAirplaneAt(6.0F, 5.0F, true)->draw();
  expectOnly({{5, 4}}, red);
  makeWindow(6, 5);
  makeAirplaneAt(8.0F, 2.0F, true)->draw();
  makeAirplaneAt(2.0F, -2.0F, false)->draw();
  expectOnly({}, red);
}

TEST_F(Airplanes, DrawNothingWithoutAWindow) {
  cAirplane airplane;
  airplane.draw();
  EXPECT_EQ(nullptr, airplane.renderWindow());
}

TEST_F(Airplanes, SurvivePlacesFarBeyondAnyScreen) {
  makeWindow(6, 5);
  const float endless = std::numeric_limits<float>::infinity();
  for (const bool lightOn : {false, true}) {
    makeAirplaneAt(endless, endless, lightOn)->draw();
    makeAirplaneAt(-endless, -endless, lightOn)->draw();
    makeAirplaneAt(2147483520.0F, 0.0F, lightOn)->draw();
    makeAirplaneAt(-2147483648.0F, 0.0F, lightOn)->draw();
  }
  expectOnly({}, red);
}
