#include "picture/picture.h"

#include <algorithm>

#include "picture/picture_system.h"
#include "picture/vector.h"

namespace stmon {
namespace {

// Each pixel is the mean of those that it stands for, so that thin lines do not vanish.
Image Scaled(const Image& image, int columns) {
  if (columns <= 0 || columns >= image.width) return image;
  Image small{columns, std::max(1, image.height * columns / image.width), {}};
  for (int y = 0; y < small.height; ++y) {
    const int top = y * image.height / small.height;
    const int bottom = std::max(top + 1, (y + 1) * image.height / small.height);
    for (int x = 0; x < small.width; ++x) {
      const int left = x * image.width / small.width;
      const int right = std::max(left + 1, (x + 1) * image.width / small.width);
      uint32_t red = 0, green = 0, blue = 0;
      for (int row = top; row < bottom; ++row) {
        for (int column = left; column < right; ++column) {
          const uint32_t pixel = image.pixels[static_cast<size_t>(row * image.width + column)];
          red += pixel >> 16 & 255;
          green += pixel >> 8 & 255;
          blue += pixel & 255;
        }
      }
      const auto count = static_cast<uint32_t>((bottom - top) * (right - left));
      small.pixels.push_back(red / count << 16 | green / count << 8 | blue / count);
    }
  }
  return small;
}

// The number of the nearest of the colours that nearly every terminal has: 216 in a cube whose
// levels are 0, 95, 135, 175, 215 and 255, and 24 greys from 8 to 238.
uint32_t NearestOf256(uint32_t red, uint32_t green, uint32_t blue) {
  constexpr uint32_t kGrey = 12;  // so far apart colours are still taken for one
  const auto [least, most] = std::minmax({red, green, blue});
  if (most - least < kGrey && least >= 4 && most <= 242)
    return 232 + std::min(((red + green + blue) / 3 - 3) / 10, 23u);
  const auto level = [](uint32_t value) {
    return value < 48 ? 0 : value < 115 ? 1 : (value - 35) / 40;
  };
  return 16 + 36 * level(red) + 6 * level(green) + level(blue);
}

std::string ColourCode(uint32_t pixel, bool true_colour) {
  const uint32_t red = pixel >> 16 & 255, green = pixel >> 8 & 255, blue = pixel & 255;
  if (!true_colour) return "5;" + std::to_string(NearestOf256(red, green, blue));
  return "2;" + std::to_string(red) + ";" + std::to_string(green) + ";" + std::to_string(blue);
}

}  // namespace

Image DrawPicture(const PrnInfoEx& record) {
  PrnBitmap bitmap{};
  if (PatGetPrnBitmap_Ex(&record, &bitmap) != 1) return {};
  return DrawParts(bitmap);
}

Image DrawPicture(const PrnInfo& info) {
  PrnBitmap bitmap{};
  if (PatGetPrnBitmap(&info, &bitmap) != 1) return {};
  return DrawParts(bitmap);
}

std::string DrawVector(const PrnInfoEx& record) {
  PrnBitmap bitmap{};
  return PatGetPrnBitmap_Ex(&record, &bitmap) == 1 ? VectorParts(bitmap) : "";
}

std::string DrawVector(const PrnInfo& info) {
  PrnBitmap bitmap{};
  return PatGetPrnBitmap(&info, &bitmap) == 1 ? VectorParts(bitmap) : "";
}

std::string ExistingIcon(const std::string& name) {
  if (name == "ICO_ERR_POWEROFF") return "ICO_OFFLINE";
  if (name == "BMP_ERR_CAUTION") return "ICO_ERR_CAUTION";
  return name;
}

Image DrawIcon(const std::string& name) {
  return ReadIcon(ExistingIcon(name).c_str());
}

std::string HalfBlocks(const Image& image, int columns, bool true_colour) {
  const Image small = Scaled(image, columns);
  std::string text;
  for (int y = 0; y + 1 < small.height; y += 2) {
    std::string before;
    for (int x = 0; x < small.width; ++x) {
      const auto at = static_cast<size_t>(y * small.width + x);
      const uint32_t upper = small.pixels[at];
      const uint32_t lower = small.pixels[at + static_cast<size_t>(small.width)];
      const std::string colours = "\x1B[38;" + ColourCode(upper, true_colour) + ";48;" +
                                  ColourCode(lower, true_colour) + "m";
      // Neighbours often have the same colours, which take more bytes than the block itself.
      if (colours != before) text += colours;
      before = colours;
      text += "\xE2\x96\x80";  // upper half block
    }
    text += "\x1B[0m\n";
  }
  return text;
}

}  // namespace stmon
