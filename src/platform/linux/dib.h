// Packed device-independent bitmaps as resources carry them, combined with a frame straight from
// their bytes: a run of a run-length encoded picture becomes one fill of the frame, or nothing at
// all when the raster operation leaves the destination as it is. Pixels are never expanded first.
#pragma once

#include <cstdint>

namespace stm {

// Pixels 0x00RRGGBB, top row first, no gaps between rows.
struct Frame {
  uint32_t* pixels;
  int32_t width;
  int32_t height;
};

enum : uint32_t { DibPlain = 0, DibRle8 = 1, DibRle4 = 2 };

// A view of a bitmap's bytes, which belong to whoever handed them in.
struct Dib {
  int32_t width;
  int32_t height;  // always positive
  bool topDown;    // plain bitmaps only; the others begin with the bottom row
  uint32_t bitsPerPixel;
  uint32_t compression;
  const uint8_t* palette;  // blue, green, red, 0
  uint32_t paletteCount;
  const uint8_t* bits;
  const uint8_t* end;
};

// GDI's coordinates end here, and so do the bitmaps that are accepted.
constexpr int32_t kLargestSide = 32767;

// Reads the header at `bytes`. Accepted are uncompressed bitmaps of 1, 4, 8 and 24 bits per pixel
// and RLE4 and RLE8; the pixel bytes themselves may be anything and of any length.
bool ReadDib(const uint8_t* bytes, uint32_t size, Dib* dib);

// The rectangle of a blit: `width` x `height` pixels from (`sourceX`, `sourceY`) of the bitmap to
// (`x`, `y`) of the frame. Any values: what lies outside of either is clipped.
struct Placement {
  int32_t x;
  int32_t y;
  int32_t width;
  int32_t height;
  int32_t sourceX;
  int32_t sourceY;
};

// Combines the bitmap with the frame by a ternary raster operation. Pixels that the bytes leave out
// (skipped, cut off, or of an index without a palette entry) are black. Result: false, and the
// frame untouched, when the operation needs a pattern.
bool PaintDib(const Dib& dib, const Frame& frame, const Placement& placement, uint32_t rop);

}  // namespace stm
