// The printer's picture and icon as pixels, and pixels as PNG or as coloured text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "stmdata/stmdata.h"

namespace stmon {

struct Image {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;  // 0xAARRGGBB, top row first; empty when nothing could be drawn
};

// 320 x 200 pixels.
Image DrawPicture(const PrnInfoEx& record);
Image DrawPicture(const PrnInfo& info);

// The same as an SVG document, for any size; empty when no picture could be composed.
std::string DrawVector(const PrnInfoEx& record);
std::string DrawVector(const PrnInfo& info);

// The two names that the library gives and has no icon for become the nearest one: offline for a
// printer without power, caution for a code without an icon.
std::string ExistingIcon(const std::string& name);

// By the name that the library gave.
Image DrawIcon(const std::string& name);

std::string EncodePng(const Image& image);

// For terminals, which have no pixels: the upper half block in one colour, on a ground of another,
// shows two of them. Scaled down to at most so many columns. `true_colour`: 24 bits, else the 216
// colours that nearly every terminal has.
std::string HalfBlocks(const Image& image, int columns, bool true_colour);

}  // namespace stmon
