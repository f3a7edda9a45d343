// The oddities of shapes that are kept because the platform draws so.
#include "graphics/canvas.h"
#include "graphics/platform.h"
#include "harness/privateFolders.h"

namespace {

class KeptShapes : public PrivateFolders {
 protected:
  Canvas canvas{12, 8};
};

TEST_F(KeptShapes, KeptAFillWithEdgesInTheWrongOrderRunsBackwards) {
  // From column 6 down to, but without, column 2; rows 1 and 2.
  canvas.window().fillRect(xplRect<int>(1, 6, -4, 2), {255, 0, 0});
  EXPECT_EQ(
      "............\n"
      "...rrrr.....\n"
      "...rrrr.....\n"
      "............\n"
      "............\n"
      "............\n"
      "............\n"
      "............\n",
      canvas.picture());
}

TEST_F(KeptShapes, KeptAWideLineReachesItsLastPointWhereAThinOneDoesNot) {
  canvas.window().drawLine(3, 4, 8, 4, 1, {255, 0, 0});
  EXPECT_EQ(xplColor(255, 255, 255), canvas.window().getPixel(8, 4));
  canvas.window().drawLine(3, 4, 8, 4, 3, {255, 0, 0});
  EXPECT_EQ(xplColor(255, 0, 0), canvas.window().getPixel(8, 4));
  EXPECT_EQ(xplColor(255, 0, 0), canvas.window().getPixel(3, 4));
  EXPECT_EQ(xplColor(255, 255, 255), canvas.window().getPixel(11, 4));
}

TEST_F(KeptShapes, KeptToolsWithoutATargetReadOpaqueRedAndDrawNothing) {
  const xplDrawingToolsPlatform::DeviceContext none = nullptr;
  xplDrawingToolsPlatform tools(none);
  tools.setPixel(1, 1, {0, 0, 255});
  tools.amplifyPixel(1, 1, 0.0F, 0.0F, 0.0F);
  tools.fillRect({0, 0, 4, 4}, {0, 0, 255});
  tools.drawLine(0, 0, 4, 4, 1, {0, 0, 255});
  tools.fillEllipse(0, 0, 4, 4, {0, 0, 255});
  EXPECT_EQ(xplColor(255, 0, 0), tools.getPixel(1, 1));
}

}  // namespace
