#include "platform/linux/dib.h"

#include <algorithm>
#include <cstring>

namespace stm {
namespace {

constexpr uint32_t kHeaderSize = 40;
constexpr uint32_t kColorMask = 0x00FFFFFF;

uint32_t Word(const uint8_t* p) {
  return p[0] | static_cast<uint32_t>(p[1]) << 8;
}

uint32_t Long(const uint8_t* p) {
  return Word(p) | Word(p + 2) << 16;
}

uint32_t Color(const uint8_t* p) {
  return Long(p) & kColorMask;
}

// What a source colour makes of a destination pixel: (pixel & keep) ^ flip. Every operation on
// source and destination has this form once the source is known.
struct Stroke {
  uint32_t keep;
  uint32_t flip;
};

// An operation's truth table: result bit number (source bit * 2 + destination bit).
Stroke StrokeOf(uint32_t truth, uint32_t color) {
  const auto spread = [&](uint32_t bit) { return truth >> bit & 1 ? kColorMask : 0; };
  const uint32_t flip = (~color & spread(0)) | (color & spread(2));
  const uint32_t set = (~color & spread(1)) | (color & spread(3));
  return {(flip ^ set) & kColorMask, flip & kColorMask};
}

// One stroke more than a byte can select: the black of pixels that the bytes leave out.
constexpr uint32_t kMissing = 256;

struct Painter {
  Frame frame;
  int32_t offsetX;  // of the bitmap's left edge in the frame
  int32_t offsetY;
  int32_t left;  // what is painted, in the frame's coordinates
  int32_t top;
  int32_t right;
  int32_t bottom;
  uint32_t truth;
  Stroke strokes[kMissing + 1];
};

// A line of the bitmap as it falls into the frame: bitmap columns `begin` to `end` are visible, and
// column c lies at pixels[c - begin].
struct Line {
  uint32_t* pixels;
  int32_t begin;
  int32_t end;
};

Line LineAt(const Dib& dib, const Painter& painter, int32_t line) {
  const int32_t y = painter.offsetY + (dib.topDown ? line : dib.height - 1 - line);
  if (y < painter.top || y >= painter.bottom) return {nullptr, 0, 0};
  return {painter.frame.pixels + y * painter.frame.width + painter.left,
          painter.left - painter.offsetX, painter.right - painter.offsetX};
}

void Brush(uint32_t* pixel, const Stroke& stroke) {
  *pixel = (*pixel & stroke.keep) ^ stroke.flip;
}

bool ChangesNothing(const Stroke& stroke) {
  return stroke.keep == kColorMask && stroke.flip == 0;
}

// Sixteen bytes at a time: most of a picture's pixels are written here.
void Fill(uint32_t* pixel, uint32_t* end, uint32_t color) {
  const uint32_t block[4] = {color, color, color, color};
  for (; end - pixel >= 4; pixel += 4)
    std::memcpy(pixel, block, sizeof block);
  for (; pixel != end; ++pixel)
    *pixel = color;
}

// Most runs of a layer change nothing or replace what is there.
void PaintRun(const Line& line, int32_t x, int32_t count, const Stroke& stroke) {
  if (ChangesNothing(stroke)) return;
  const int32_t begin = std::max(x, line.begin) - line.begin;
  const int32_t end = std::min(x + count, line.end) - line.begin;
  if (begin >= end) return;
  if (stroke.keep == 0) {
    Fill(line.pixels + begin, line.pixels + end, stroke.flip);
  } else {
    for (uint32_t* pixel = line.pixels + begin; pixel != line.pixels + end; ++pixel)
      Brush(pixel, stroke);
  }
}

void PaintPair(const Line& line, int32_t x, int32_t count, const Stroke& even, const Stroke& odd) {
  const int32_t end = std::min(x + count, line.end);
  for (int32_t c = std::max(x, line.begin); c < end; ++c)
    Brush(line.pixels + (c - line.begin), (c - x) & 1 ? odd : even);
}

template <uint32_t bits>
uint32_t IndexAt(const uint8_t* bytes, uint32_t pixel) {
  constexpr uint32_t perByte = 8 / bits;
  const uint32_t shift = (perByte - 1 - pixel % perByte) * bits;
  return bytes[pixel / perByte] >> shift & ((1u << bits) - 1);
}

template <uint32_t bits>
void PaintIndices(const Painter& painter, const Line& line, int32_t x, int32_t count,
                  const uint8_t* bytes) {
  const int32_t end = std::min(x + count, line.end);
  for (int32_t c = std::max(x, line.begin); c < end; ++c) {
    const uint32_t index = IndexAt<bits>(bytes, static_cast<uint32_t>(c - x));
    Brush(line.pixels + (c - line.begin), painter.strokes[index]);
  }
}

void PaintColors(const Painter& painter, const Line& line, const uint8_t* bytes) {
  for (int32_t c = line.begin; c < line.end; ++c) {
    const uint8_t* p = bytes + 3 * c;
    const uint32_t color = Word(p) | static_cast<uint32_t>(p[2]) << 16;
    Brush(line.pixels + (c - line.begin), StrokeOf(painter.truth, color));
  }
}

void PaintPlain(const Dib& dib, const Painter& painter) {
  const uint64_t used = (static_cast<uint64_t>(dib.width) * dib.bitsPerPixel + 7) / 8;
  const uint64_t stride = (used + 3) / 4 * 4;
  const auto size = static_cast<uint64_t>(dib.end - dib.bits);
  for (int32_t y = 0; y < dib.height; ++y) {
    const Line line = LineAt(dib, painter, y);
    if (!line.pixels) continue;
    const uint64_t offset = static_cast<uint64_t>(y) * stride;
    if (offset + used > size) {
      PaintRun(line, 0, dib.width, painter.strokes[kMissing]);
      continue;
    }
    const uint8_t* bytes = dib.bits + offset;
    switch (dib.bitsPerPixel) {
      case 1:
        PaintIndices<1>(painter, line, 0, dib.width, bytes);
        break;
      case 4:
        PaintIndices<4>(painter, line, 0, dib.width, bytes);
        break;
      case 8:
        PaintIndices<8>(painter, line, 0, dib.width, bytes);
        break;
      default:
        PaintColors(painter, line, bytes);
        break;
    }
  }
}

// Where the decoder stands. It only moves forward, so each pixel is painted exactly once.
struct Cursor {
  int32_t x;
  int32_t y;  // lines from the bitmap's first
  Line line;
};

// Moves on and paints what is passed over black; the frame's edges stop the movement.
void MoveTo(const Dib& dib, const Painter& painter, Cursor& cursor, int32_t x, int32_t y) {
  const Stroke& missing = painter.strokes[kMissing];
  while (cursor.y < std::min(y, dib.height)) {
    PaintRun(cursor.line, cursor.x, dib.width - cursor.x, missing);
    cursor.x = 0;
    ++cursor.y;
    cursor.line = LineAt(dib, painter, cursor.y);
  }
  if (cursor.y == dib.height) return;
  x = std::min(x, dib.width);
  PaintRun(cursor.line, cursor.x, x - cursor.x, missing);
  cursor.x = x;
}

// RLE4 (two indices a byte) and RLE8, each step two bytes or more:
//   count value        `count` pixels of the index or of the two indices in turn
//   0 0                on to the next line
//   0 1                the end
//   0 2 dx dy          on by so many pixels and lines
//   0 n bytes          n pixels one by one, padded to an even number of bytes
template <uint32_t bits>
void PaintRle(const Dib& dib, const Painter& painter) {
  const uint8_t* in = dib.bits;
  Cursor at{0, 0, LineAt(dib, painter, 0)};
  while (at.y < dib.height && dib.end - in >= 2) {
    const int32_t count = in[0];
    const uint32_t value = in[1];
    in += 2;
    if (count > 0) {
      const int32_t shown = std::min(count, dib.width - at.x);
      const Stroke& even = painter.strokes[bits == 4 ? value >> 4 : value];
      const Stroke& odd = painter.strokes[bits == 4 ? value & 15 : value];
      if (&even == &odd) {
        if (!ChangesNothing(even)) PaintRun(at.line, at.x, shown, even);
      } else {
        PaintPair(at.line, at.x, shown, even, odd);
      }
      at.x += shown;
    } else if (value == 0) {
      MoveTo(dib, painter, at, 0, at.y + 1);
    } else if (value == 1) {
      break;
    } else if (value == 2) {
      if (dib.end - in < 2) break;
      MoveTo(dib, painter, at, at.x + in[0], at.y + in[1]);
      in += 2;
    } else {
      const auto left = static_cast<uint32_t>(std::min<int64_t>(dib.end - in, 256));
      const uint32_t whole = std::min(value, left * (8 / bits));
      const int32_t shown = std::min(static_cast<int32_t>(whole), dib.width - at.x);
      PaintIndices<bits>(painter, at.line, at.x, shown, in);
      at.x += shown;
      in += std::min((value * bits + 15) / 16 * 2, left);
    }
  }
  MoveTo(dib, painter, at, 0, dib.height);
}

}  // namespace

bool ReadDib(const uint8_t* bytes, uint32_t size, Dib* dib) {
  if (!bytes || size < kHeaderSize) return false;
  const uint32_t headerSize = Long(bytes);
  const auto width = static_cast<int32_t>(Long(bytes + 4));
  const auto height = static_cast<int32_t>(Long(bytes + 8));
  if (headerSize < kHeaderSize || headerSize > size) return false;
  if (width <= 0 || width > kLargestSide) return false;
  if (height == 0 || height < -kLargestSide || height > kLargestSide) return false;

  const uint32_t depth = Word(bytes + 14);
  const uint32_t compression = Long(bytes + 16);
  const bool plain = compression == DibPlain;
  if (plain && depth != 1 && depth != 4 && depth != 8 && depth != 24) return false;
  if (!plain && !(compression == DibRle8 && depth == 8) && !(compression == DibRle4 && depth == 4))
    return false;
  if (!plain && height < 0) return false;

  // A palette of 0 entries is one of all that the depth can select, and of none at 24 bits.
  const uint32_t fullPalette = depth == 24 ? 0 : 1u << depth;
  const uint32_t told = Long(bytes + 32);
  const uint32_t paletteCount = told ? told : fullPalette;
  if (paletteCount > 256 || paletteCount * 4 > size - headerSize) return false;

  *dib = {.width = width,
          .height = height < 0 ? -height : height,
          .topDown = height < 0,
          .bitsPerPixel = depth,
          .compression = compression,
          .palette = bytes + headerSize,
          .paletteCount = paletteCount,
          .bits = bytes + headerSize + paletteCount * 4,
          .end = bytes + size};
  return true;
}

bool PaintDib(const Dib& dib, const Frame& frame, const Placement& to, uint32_t rop) {
  const uint32_t truth = rop >> 16 & 15;
  if ((rop >> 20 & 15) != truth) return false;

  const int64_t offsetX = static_cast<int64_t>(to.x) - to.sourceX;
  const int64_t offsetY = static_cast<int64_t>(to.y) - to.sourceY;
  const int64_t left = std::max<int64_t>({0, to.x, offsetX});
  const int64_t top = std::max<int64_t>({0, to.y, offsetY});
  const int64_t right =
      std::min<int64_t>({frame.width, static_cast<int64_t>(to.x) + to.width, offsetX + dib.width});
  const int64_t bottom = std::min<int64_t>(
      {frame.height, static_cast<int64_t>(to.y) + to.height, offsetY + dib.height});
  if (left >= right || top >= bottom) return true;

  // What is visible lies within the frame, and the bitmap no further off than its own size.
  Painter painter;
  painter.frame = frame;
  painter.offsetX = static_cast<int32_t>(offsetX);
  painter.offsetY = static_cast<int32_t>(offsetY);
  painter.left = static_cast<int32_t>(left);
  painter.top = static_cast<int32_t>(top);
  painter.right = static_cast<int32_t>(right);
  painter.bottom = static_cast<int32_t>(bottom);
  painter.truth = truth;
  painter.strokes[kMissing] = StrokeOf(truth, 0);
  const uint32_t selectable = dib.bitsPerPixel == 24 ? 0 : 1u << dib.bitsPerPixel;
  for (uint32_t i = 0; i < selectable; ++i)
    painter.strokes[i] = StrokeOf(truth, i < dib.paletteCount ? Color(dib.palette + 4 * i) : 0);

  switch (dib.compression) {
    case DibRle8:
      PaintRle<8>(dib, painter);
      break;
    case DibRle4:
      PaintRle<4>(dib, painter);
      break;
    default:
      PaintPlain(dib, painter);
      break;
  }
  return true;
}

}  // namespace stm
