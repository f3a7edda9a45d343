// Turns a bitmap of the resources into a PNG to look at: as the sky shows it, enlarged, or with its faint
// tones raised. Usage: preview_pictures BITMAP PNG STEP...
//   tile=WxH        repeat it over a window
//   stretch=WxH     stretch it to a window by dropping or repeating pixels
//   crop=WxH+X+Y    cut a piece out
//   enlarge=N       repeat each pixel N times both ways
//   gain=N          multiply each channel by N
//   phases=N        shade it as the moon sprite does, for N phases in a row, on a dark sky
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "rgbaPicture.h"

namespace {

template <class Source>
RgbaPicture sampled(int width, int height, Source source) {
  RgbaPicture result(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      result.at(x, y) = source(x, y);
    }
  }
  return result;
}

std::uint8_t scaled(std::uint8_t channel, double factor) {
  return static_cast<std::uint8_t>(std::clamp(channel * factor, 0.0, 255.0));
}

// How much of a pixel of the moon is lit, 0 to 1: the moon sprite's own formula with its odd constants.
double illumination(int x, int y, int radius, int phase) {
  const int dx = x - radius;
  const int dy = y - radius;
  if (radius * radius < dx * dx + dy * dy) {
    return 0.0;
  }
  const int signedPhase = phase <= 180 ? phase : phase - 360;
  const double c =
      std::clamp(dx / std::sqrt(radius * radius + 0.01 - dy * dy), -0.999999999999, 0.999999999999);
  const int a = static_cast<int>(std::acos(c) * -57.29746936176985);
  const double f = std::cos((-90 - a - signedPhase) * 3.0414999961853026 / 180.0);
  return std::sqrt(std::sqrt(std::max(f, 0.0)));
}

void shadeRow(RgbaPicture& moon, const RgbaPicture& unlit, int x, int fromRow, int toRow, int phase) {
  if (toRow < 0 || toRow >= moon.height) {
    return;
  }
  const double f = illumination(x, fromRow, moon.width / 2, phase);
  const Rgba& pixel = unlit.at(x, toRow);
  moon.at(x, toRow) = {scaled(pixel.red, f), scaled(pixel.green, f), scaled(pixel.blue, std::max(f, 0.3)),
                       255};
}

RgbaPicture phases(const RgbaPicture& moon, int count) {
  const int step = moon.width + moon.width / 10;
  const Rgba sky = {6, 7, 18, 255};
  RgbaPicture sheet = sampled(step * count, step, [sky](int, int) { return sky; });
  for (int i = 0; i < count; ++i) {
    RgbaPicture shaded = moon;
    for (int x = 0; x < moon.width; ++x) {
      for (int y = 0; y <= moon.height / 2; ++y) {
        shadeRow(shaded, moon, x, y, y, i * 360 / count);
        if (2 * y < moon.height) {
          shadeRow(shaded, moon, x, y, moon.height - y, i * 360 / count);
        }
      }
    }
    const int margin = (step - moon.width) / 2;
    for (int y = 0; y < moon.height; ++y) {
      for (int x = 0; x < moon.width; ++x) {
        const Rgba& pixel = shaded.at(x, y);
        if (pixel.red + pixel.green + pixel.blue > 0) {
          sheet.at(i * step + margin + x, margin + y) = pixel;
        }
      }
    }
  }
  return sheet;
}

RgbaPicture apply(const RgbaPicture& picture, const std::string& step) {
  int a = 0;
  int b = 0;
  int left = 0;
  int top = 0;
  if (std::sscanf(step.c_str(), "tile=%dx%d", &a, &b) == 2) {
    return sampled(a, b, [&](int x, int y) { return picture.at(x % picture.width, y % picture.height); });
  }
  if (std::sscanf(step.c_str(), "stretch=%dx%d", &a, &b) == 2) {
    return sampled(a, b,
                   [&](int x, int y) { return picture.at(x * picture.width / a, y * picture.height / b); });
  }
  if (std::sscanf(step.c_str(), "crop=%dx%d+%d+%d", &a, &b, &left, &top) == 4 && left >= 0 && top >= 0 &&
      left + a <= picture.width && top + b <= picture.height) {
    return sampled(a, b, [&](int x, int y) { return picture.at(left + x, top + y); });
  }
  if (std::sscanf(step.c_str(), "enlarge=%d", &a) == 1) {
    return sampled(picture.width * a, picture.height * a,
                   [&](int x, int y) { return picture.at(x / a, y / a); });
  }
  if (std::sscanf(step.c_str(), "gain=%d", &a) == 1) {
    return sampled(picture.width, picture.height, [&](int x, int y) {
      const Rgba& pixel = picture.at(x, y);
      return Rgba{scaled(pixel.red, a), scaled(pixel.green, a), scaled(pixel.blue, a), 255};
    });
  }
  if (std::sscanf(step.c_str(), "phases=%d", &a) == 1) {
    return phases(picture, a);
  }
  throw std::runtime_error("unknown step " + step);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs(
        "usage: preview_pictures BITMAP PNG [tile|stretch=WxH|crop=WxH+X+Y|enlarge|gain|phases=N]...\n",
        stderr);
    return 1;
  }
  try {
    RgbaPicture picture = readBitmap(argv[1]);
    for (int i = 3; i < argc; ++i) {
      picture = apply(picture, argv[i]);
    }
    writeFile(pngBytes(picture), argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "preview_pictures: %s\n", error.what());
    return 1;
  }
  return 0;
}
