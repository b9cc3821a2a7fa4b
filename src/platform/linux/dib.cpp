#include "platform/linux/dib.h"

#include <algorithm>
#include <cstring>
#include <iterator>

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

// The operation where the source's bits are 0, and where they are 1.
struct Operation {
  Stroke zeros;
  Stroke ones;
};

// A truth table: result bit number (source bit * 2 + destination bit).
Operation OperationOf(uint32_t truth) {
  const auto spread = [&](uint32_t bit) { return truth >> bit & 1 ? kColorMask : 0; };
  return {{spread(0) ^ spread(1), spread(0)}, {spread(2) ^ spread(3), spread(2)}};
}

Stroke StrokeOf(const Operation& operation, uint32_t color) {
  return {(operation.zeros.keep & ~color) | (operation.ones.keep & color),
          (operation.zeros.flip & ~color) | (operation.ones.flip & color)};
}

// One stroke more than a byte can select: the black of pixels that the bytes leave out.
constexpr uint32_t kMissing = 256;

// Combines the pixels of a long run. The arguments travel in registers, in 32 bits only when asked
// to.
#ifdef __i386__
#define STM_BRUSH __attribute__((regparm(3))) void
#else
#define STM_BRUSH void
#endif
using Brush = STM_BRUSH (*)(uint32_t* pixel, int32_t count, const Stroke& stroke);

struct Painter {
  Frame frame;
  Brush brush;
  int32_t offsetX;   // of the bitmap's left edge in the frame
  int32_t firstRow;  // of the frame, for the bitmap's first line
  int32_t left;      // what is painted, in the frame's coordinates
  int32_t top;
  int32_t right;
  int32_t bottom;
  Operation operation;
  Stroke strokes[kMissing + 1];
};

// A row of the frame, painted from `left` to `right`. On a hidden one nothing lies between them.
struct Row {
  uint32_t* pixels;
  int32_t left;
  int32_t right;
};

// The row that a line of the bitmap falls into.
Row RowOf(const Dib& dib, const Painter& painter, int32_t line) {
  const int32_t y = painter.firstRow + (dib.topDown ? line : -line);
  if (y < painter.top || y >= painter.bottom) return {nullptr, painter.right, painter.right};
  return {painter.frame.pixels + y * painter.frame.width, painter.left, painter.right};
}

uint32_t Brushed(uint32_t pixel, const Stroke& stroke) {
  return (pixel & stroke.keep) ^ stroke.flip;
}

// ---- Runs -------------------------------------------------------------------------------------

// Pixels side by side that are combined at once.
using Four = uint32_t __attribute__((vector_size(16)));
using Eight = uint32_t __attribute__((vector_size(32)));

// Paints a block or more. The last block may overlap the one before it, and writes the same there:
// it is read before anything is written.
template <class Block>
__attribute__((always_inline)) inline void PaintBlocks(uint32_t* pixel, int32_t count,
                                                       const Stroke& stroke) {
  constexpr int32_t kSize = sizeof(Block) / sizeof *pixel;
  const Block keep = stroke.keep - Block{};
  const Block flip = stroke.flip - Block{};
  uint32_t* const last = pixel + count - kSize;
  if (stroke.keep == 0) {
    for (; last - pixel > 3 * kSize; pixel += 4 * kSize) {
      for (int32_t i = 0; i < 4; ++i)
        std::memcpy(pixel + i * kSize, &flip, sizeof flip);
    }
    for (; pixel < last; pixel += kSize)
      std::memcpy(pixel, &flip, sizeof flip);
    std::memcpy(last, &flip, sizeof flip);
    return;
  }
  Block end;
  std::memcpy(&end, last, sizeof end);
  end = (end & keep) ^ flip;
  for (; pixel < last; pixel += kSize) {
    Block block;
    std::memcpy(&block, pixel, sizeof block);
    block = (block & keep) ^ flip;
    std::memcpy(pixel, &block, sizeof block);
  }
  std::memcpy(last, &end, sizeof end);
}

// The shortest run for a brush.
constexpr int32_t kLongRun = kWidestBlock;

// A function for processors that have what the build does not ask for, and whether this one has it.
// Other architectures have all that is needed here in every processor.
#if defined(__i386__) || defined(__x86_64__)
#define STM_PROCESSOR(feature) __attribute__((target(feature)))
#define STM_PROCESSOR_HAS(feature) __builtin_cpu_supports(feature)
#else
#define STM_PROCESSOR(feature)
#define STM_PROCESSOR_HAS(feature) true
#endif

STM_PROCESSOR("avx2") STM_BRUSH BrushEights(uint32_t* pixel, int32_t count, const Stroke& stroke) {
  PaintBlocks<Eight>(pixel, count, stroke);
}

STM_PROCESSOR("sse2") STM_BRUSH BrushFours(uint32_t* pixel, int32_t count, const Stroke& stroke) {
  PaintBlocks<Four>(pixel, count, stroke);
}

STM_BRUSH BrushSingles(uint32_t* pixel, int32_t count, const Stroke& stroke) {
  for (uint32_t* const end = pixel + count; pixel != end; ++pixel)
    *pixel = Brushed(*pixel, stroke);
}

// The build asks for no particular processor: the brush is chosen where it runs.
Brush ChooseBrush(uint32_t widestBlock) {
  if (widestBlock >= 8 && STM_PROCESSOR_HAS("avx2")) return BrushEights;
  return widestBlock >= 4 && STM_PROCESSOR_HAS("sse2") ? BrushFours : BrushSingles;
}

void PaintPixels(const Painter& painter, uint32_t* pixel, int32_t count, const Stroke& stroke) {
  if (count >= kLongRun) {
    painter.brush(pixel, count, stroke);
  } else {
    for (; count > 0; --count, ++pixel)
      *pixel = Brushed(*pixel, stroke);
  }
}

// The columns `x` to `end` of the row; `end` is not beyond those that are painted.
void PaintRun(const Painter& painter, const Row& row, int32_t x, int32_t end,
              const Stroke& stroke) {
  const int32_t begin = std::max(x, row.left);
  if (begin < end) PaintPixels(painter, row.pixels + begin, end - begin, stroke);
}

void PaintPair(const Row& row, int32_t x, int32_t end, const Stroke& even, const Stroke& odd) {
  for (int32_t c = std::max(x, row.left); c < end; ++c)
    row.pixels[c] = Brushed(row.pixels[c], (c - x) & 1 ? odd : even);
}

// ---- Single pixels ----------------------------------------------------------------------------

// The first index is that of column `x`.
template <uint32_t bits>
void PaintIndices(const Painter& painter, const Row& row, int32_t x, int32_t end,
                  const uint8_t* bytes) {
  constexpr uint32_t kPerByte = 8 / bits;
  const int32_t begin = std::max(x, row.left);
  if (begin >= end) return;
  uint32_t* pixel = row.pixels + begin;
  const auto paint = [&](uint32_t byte, uint32_t place) {
    const uint32_t index = byte >> (8 - bits - place * bits) & ((1u << bits) - 1);
    *pixel = Brushed(*pixel, painter.strokes[index]);
    ++pixel;
  };
  const auto count = static_cast<uint32_t>(end - x);
  auto i = static_cast<uint32_t>(begin - x);
  for (; i < count && i % kPerByte != 0; ++i)
    paint(bytes[i / kPerByte], i % kPerByte);
  for (; i + kPerByte <= count; i += kPerByte) {
    const uint32_t byte = bytes[i / kPerByte];
    for (uint32_t place = 0; place < kPerByte; ++place)
      paint(byte, place);
  }
  for (; i < count; ++i)
    paint(bytes[i / kPerByte], i % kPerByte);
}

void PaintColors(const Painter& painter, const Row& row, const uint8_t* bytes) {
  for (int32_t c = row.left; c < row.right; ++c) {
    const uint8_t* p = bytes + 3 * (c - painter.offsetX);
    const uint32_t color = Word(p) | static_cast<uint32_t>(p[2]) << 16;
    row.pixels[c] = Brushed(row.pixels[c], StrokeOf(painter.operation, color));
  }
}

void PaintPlain(const Dib& dib, const Painter& painter) {
  const uint64_t used = (static_cast<uint64_t>(dib.width) * dib.bitsPerPixel + 7) / 8;
  const uint64_t stride = (used + 3) / 4 * 4;
  const auto size = static_cast<uint64_t>(dib.end - dib.bits);
  for (int32_t line = 0; line < dib.height; ++line) {
    const Row row = RowOf(dib, painter, line);
    if (!row.pixels) continue;
    const uint64_t offset = static_cast<uint64_t>(line) * stride;
    if (offset + used > size) {
      PaintRun(painter, row, row.left, row.right, painter.strokes[kMissing]);
      continue;
    }
    const uint8_t* bytes = dib.bits + offset;
    switch (dib.bitsPerPixel) {
      case 1:
        PaintIndices<1>(painter, row, painter.offsetX, row.right, bytes);
        break;
      case 4:
        PaintIndices<4>(painter, row, painter.offsetX, row.right, bytes);
        break;
      case 8:
        PaintIndices<8>(painter, row, painter.offsetX, row.right, bytes);
        break;
      default:
        PaintColors(painter, row, bytes);
        break;
    }
  }
}

// ---- Run lengths ------------------------------------------------------------------------------

// What a run's second byte says: two indices in turn, one, or one that leaves pixels as they are.
enum class Run : uint8_t { Pair, Single, Nothing };

struct RunTable {
  Run kinds[256];
  Stroke strokes[256];  // of the single ones
};

template <uint32_t bits>
RunTable RunsOf(const Painter& painter) {
  RunTable runs;
  std::fill_n(runs.kinds, std::size(runs.kinds), Run::Pair);
  for (uint32_t index = 0; index < 1u << bits; ++index) {
    const Stroke& stroke = painter.strokes[index];
    const bool nothing = stroke.keep == kColorMask && stroke.flip == 0;
    const uint32_t value = bits == 4 ? index * 0x11 : index;
    runs.kinds[value] = nothing ? Run::Nothing : Run::Single;
    runs.strokes[value] = stroke;
  }
  return runs;
}

// Where the decoder stands. It only moves forward, so each pixel is painted exactly once.
struct Place {
  int32_t x;  // of the frame, at most the painter's right
  int32_t line;
};

// Moves on and paints what is passed over black.
Place MoveTo(const Dib& dib, const Painter& painter, Place at, int32_t x, int32_t line) {
  const Stroke& missing = painter.strokes[kMissing];
  for (; at.line < std::min(line, dib.height); ++at.line) {
    PaintRun(painter, RowOf(dib, painter, at.line), at.x, painter.right, missing);
    at.x = painter.offsetX;
  }
  if (at.line == dib.height) return at;
  x = std::min(x, painter.right);
  PaintRun(painter, RowOf(dib, painter, at.line), at.x, x, missing);
  return {x, line};
}

// How many times the `period` bytes before `in` are there again from `in` on.
int32_t Repetitions(const uint8_t* in, const uint8_t* end, int32_t period) {
  const auto word = [](const uint8_t* bytes) {
    uint64_t value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
  };
  const uint8_t* same = in;
  while (end - same >= 8 && word(same) == word(same - period))
    same += 8;
  return static_cast<int32_t>(same - in) / period;
}

// RLE4 (two indices a byte) and RLE8, each step two bytes or more:
//   count value        `count` pixels of the index or of the two indices in turn
//   0 0                on to the next line
//   0 1                the end
//   0 2 dx dy          on by so many pixels and lines
//   0 n bytes          n pixels one by one, padded to an even number of bytes
//
// Two versions each, and none of them within its caller: the loop then gets along with the few
// registers that there are. Not `clipped` are bitmaps that lie in the frame but for their right.
template <uint32_t bits, bool clipped>
__attribute__((noinline)) void PaintRle(const Dib& dib, const Painter& painter) {
  const RunTable runs = RunsOf<bits>(painter);
  const int32_t right = painter.right;
  const uint8_t* in = dib.bits;
  const uint8_t* const last = dib.end - 1;
  Place at{painter.offsetX, 0};
  while (at.line < dib.height) {
    const Row row =
        clipped ? RowOf(dib, painter, at.line)
                : Row{painter.frame.pixels + (painter.firstRow - at.line) * painter.frame.width,
                      painter.offsetX, right};
    // The line's first byte as long as its steps leave every pixel as it is.
    const uint8_t* unchanged = at.x == painter.offsetX ? in : nullptr;
    int32_t x = at.x;
    for (;;) {
      if (in >= last) {
        MoveTo(dib, painter, {x, at.line}, 0, dib.height);
        return;
      }
      const int32_t count = in[0];
      const uint32_t value = in[1];
      in += 2;
      if (count > 0) {
        const int32_t from = x;
        x = std::min(x + count, right);
        const Run kind = runs.kinds[value];
        if (kind == Run::Nothing) continue;
        unchanged = nullptr;
        if (kind == Run::Pair)
          PaintPair(row, from, x, painter.strokes[value >> 4], painter.strokes[value & 15]);
        else if (clipped)
          PaintRun(painter, row, from, x, runs.strokes[value]);
        else
          PaintPixels(painter, row.pixels + from, x - from, runs.strokes[value]);
      } else if (value > 2) {
        const auto left = static_cast<uint32_t>(dib.end - in);
        const uint32_t used = std::min((value * bits + 15) / 16 * 2, left);
        const auto pixels = static_cast<int32_t>(std::min(value, used * (8 / bits)));
        const int32_t end = std::min(x + pixels, right);
        PaintIndices<bits>(painter, row, x, end, in);
        in += used;
        x = end;
        unchanged = nullptr;
      } else if (value == 0 && x < right) {
        at = MoveTo(dib, painter, {x, at.line}, painter.offsetX, at.line + 1);
        break;
      } else if (value == 0) {
        at = {painter.offsetX, at.line + 1};
        // The lines around a layer's part are all alike: their bytes are only compared.
        if (unchanged) {
          const auto period = static_cast<int32_t>(in - unchanged);
          const int32_t lines = std::min(Repetitions(in, dib.end, period), dib.height - at.line);
          in += lines * period;
          at.line += lines;
        }
        break;
      } else if (value == 2 && dib.end - in >= 2) {
        at = MoveTo(dib, painter, {x, at.line}, x + in[0], at.line + in[1]);
        in += 2;
        break;
      } else {
        MoveTo(dib, painter, {x, at.line}, 0, dib.height);
        return;
      }
    }
  }
}

template <uint32_t bits>
void PaintRle(const Dib& dib, const Painter& painter) {
  const bool clipped = painter.left > painter.offsetX || painter.firstRow >= painter.bottom ||
                       painter.firstRow - (dib.height - 1) < painter.top;
  if (clipped) {
    PaintRle<bits, true>(dib, painter);
  } else {
    PaintRle<bits, false>(dib, painter);
  }
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

bool PaintDib(const Dib& dib, const Frame& frame, const Placement& to, uint32_t rop,
              uint32_t widestBlock) {
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
  painter.brush = ChooseBrush(widestBlock);
  painter.frame = frame;
  painter.offsetX = static_cast<int32_t>(offsetX);
  painter.firstRow = static_cast<int32_t>(offsetY) + (dib.topDown ? 0 : dib.height - 1);
  painter.left = static_cast<int32_t>(left);
  painter.top = static_cast<int32_t>(top);
  painter.right = static_cast<int32_t>(right);
  painter.bottom = static_cast<int32_t>(bottom);
  painter.operation = OperationOf(truth);
  painter.strokes[kMissing] = painter.operation.zeros;
  const uint32_t selectable = dib.bitsPerPixel == 24 ? 0 : 1u << dib.bitsPerPixel;
  for (uint32_t i = 0; i < selectable; ++i)
    painter.strokes[i] =
        StrokeOf(painter.operation, i < dib.paletteCount ? Color(dib.palette + 4 * i) : 0);

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
