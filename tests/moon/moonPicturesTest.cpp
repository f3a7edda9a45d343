// The moon's pictures as the program carries them: their sizes, their clean edge, and that they show the
// moon.
#include <cmath>
#include <utility>

#include "moon/moonFixture.h"
#include "moon/moonShading.h"
#include "moon/moonSprite.h"
#include "windowharness/testWindow.h"

namespace {

constexpr double degreesPerRadian = 57.29577951308232;

class MoonPictures : public MoonTest {
 protected:
  // Calls look(dx, dy, color) for each pixel; dx and dy count from the disc's middle.
  template <class Look>
  static void eachPixel(xplImage& picture, Look look) {
    const int middle = picture.getWidth() / 2;
    for (int y = 0; y < picture.getHeight(); ++y) {
      for (int x = 0; x < picture.getWidth(); ++x) {
        look(x - middle, y - middle, picture.getPixel(x, y));
      }
    }
  }
  static double distance(int dx, int dy) { return std::sqrt(static_cast<double>(dx * dx + dy * dy)); }

  // The mean of red around a place of the largest picture, seen as from the Earth, north up; degrees.
  static double brightnessAt(xplImage& picture, double latitude, double longitude) {
    const double north = std::sin(latitude / degreesPerRadian);
    const double east = std::cos(latitude / degreesPerRadian) * std::sin(longitude / degreesPerRadian);
    const int x = static_cast<int>(std::lround(150.0 + 149.5 * east));
    const int y = static_cast<int>(std::lround(150.0 - 149.5 * north));
    int sum = 0;
    for (int row = y - 2; row <= y + 2; ++row) {
      for (int column = x - 2; column <= x + 2; ++column) {
        sum += picture.getPixel(column, row).red();
      }
    }
    return sum / 25.0;
  }
};

constexpr int resources[] = {118, 120, 121, 122};

TEST_F(MoonPictures, AreLoadedForEachSetting) {
  using SettingAndSize = std::pair<int, float>;
  for (const auto& [setting, size] : {SettingAndSize{50, 50},
                                      {100, 100},
                                      {200, 200},
                                      {300, 300},
                                      SettingAndSize{0, 100},
                                      {150, 100},
                                      {-1, 100}}) {
    cMoonSprite moon;
    ASSERT_TRUE(moon.loadMoonImage(setting)) << setting;
    EXPECT_EQ(size, moon.width) << setting;
    EXPECT_EQ(size, moon.height) << setting;
  }
}

TEST_F(MoonPictures, AreExactlyBlackOutsideTheDisc) {
  for (const int resource : resources) {
    xplImage picture;
    ASSERT_TRUE(picture.initWithResource(resource));
    const int radius = picture.getWidth() / 2;
    eachPixel(picture, [&](int dx, int dy, xplColor color) {
      if (distance(dx, dy) > radius || dx == -radius || dy == -radius) {
        ASSERT_EQ(xplColor(0, 0, 0).value(), color.value()) << resource << ": " << dx << ", " << dy;
      }
    });
  }
}

// Black is what the sky shows through, so no phase may make the disc black anywhere.
TEST_F(MoonPictures, HaveNoHoleInTheDiscAtAnyPhase) {
  for (const int resource : resources) {
    for (int phase = 0; phase < 360; phase += 45) {
      xplImage picture;
      ASSERT_TRUE(picture.initWithResource(resource));
      const auto side = static_cast<float>(picture.getWidth());
      shadeMoon(picture, side, side, phase);
      eachPixel(picture, [&](int dx, int dy, xplColor color) {
        if (distance(dx, dy) < picture.getWidth() / 2 - 1) {
          ASSERT_NE(xplColor(0, 0, 0).value(), color.value()) << resource << ": " << dx << ", " << dy;
        }
      });
    }
  }
}

TEST_F(MoonPictures, LeaveTheSkyAroundTheDiscAlone) {
  TestWindow native(340, 330);
  xplWindow window(native.handle());
  const xplColor sky(16, 32, 72);
  window.fillRect({0, 0, 340, 330}, sky);
  cMoonSprite moon;
  ASSERT_TRUE(moon.loadMoonImage(300));
  shadeMoon(*moon.image(), moon.width, moon.height, 90);
  moon.setRenderWindow(&window);
  moon.x = 20.0F;
  moon.y = 10.0F;
  moon.draw();
  for (int y = 0; y < 330; ++y) {
    for (int x = 0; x < 340; ++x) {
      if (distance(x - 170, y - 160) > 150.0) {
        ASSERT_EQ(sky.value(), window.getPixel(x, y).value()) << x << ", " << y;
      }
    }
  }
  EXPECT_NE(sky, window.getPixel(170, 160));
}

TEST_F(MoonPictures, ShowTheSeasAndTheHighlandsInTheirPlaces) {
  xplImage picture;
  ASSERT_TRUE(picture.initWithResource(122));
  constexpr std::pair<double, double> seas[] = {{33, -16}, {27, 18},  {8, 30},    {17, 59},
                                                {-4, 51},  {-15, 35}, {-24, -39}, {-21, -16},
                                                {30, -60}, {13, 4},   {-5, -68}};
  for (const auto& [latitude, longitude] : seas) {
    EXPECT_LT(brightnessAt(picture, latitude, longitude), 145.0) << latitude << ", " << longitude;
  }
  constexpr std::pair<double, double> highlands[] = {{-10, 15}, {-30, 20}, {-60, 0},   {-40, 60},
                                                     {68, 0},   {65, 40},  {-35, -60}, {20, 80}};
  for (const auto& [latitude, longitude] : highlands) {
    EXPECT_GT(brightnessAt(picture, latitude, longitude), 150.0) << latitude << ", " << longitude;
  }
}

TEST_F(MoonPictures, ShowTheYoungCratersBrighterThanTheGroundAround) {
  xplImage picture;
  ASSERT_TRUE(picture.initWithResource(122));
  EXPECT_GT(brightnessAt(picture, -43.3, -11.2), brightnessAt(picture, -30, 20) + 30.0) << "Tycho";
  EXPECT_GT(brightnessAt(picture, 9.6, -20.1), brightnessAt(picture, 33, -16) + 60.0) << "Copernicus";
  EXPECT_GT(brightnessAt(picture, 8.1, -38.0), brightnessAt(picture, 0, -50) + 60.0) << "Kepler";
  EXPECT_GT(brightnessAt(picture, 23.7, -47.4), brightnessAt(picture, 30, -60) + 60.0) << "Aristarchus";
}

}  // namespace
