#include "platform/linux/dib.h"

#include <algorithm>
#include <cstring>

#include "platform/linux/brush.h"

namespace stm {
namespace {

constexpr uint32_t kHeaderSize = 40;

uint32_t Word(const uint8_t* p) {
  return p[0] | static_cast<uint32_t>(p[1]) << 8;
}

uint32_t Long(const uint8_t* p) {
  return Word(p) | Word(p + 2) << 16;
}

uint32_t Colour(const uint8_t* p) {
  return Word(p) | static_cast<uint32_t>(p[2]) << 16;
}

// The strokes of an operation where the source's bits are 0, and where they are 1.
struct Operation {
  Stroke zeros;
  Stroke ones;
};

// A truth table: result bit number (source bit * 2 + destination bit).
Operation OperationOf(uint32_t truth) {
  const auto spread = [&](uint32_t bit) { return truth >> bit & 1 ? kColourMask : 0; };
  return {{spread(0) ^ spread(1), spread(0)}, {spread(2) ^ spread(3), spread(2)}};
}

Stroke StrokeOf(const Operation& operation, uint32_t colour) {
  return {(operation.zeros.keep & ~colour) | (operation.ones.keep & colour),
          (operation.zeros.flip & ~colour) | (operation.ones.flip & colour)};
}

// One stroke more than a byte can select: the black of pixels that the bytes leave out.
constexpr uint32_t kMissing = 256;

// A blit. Columns and rows are the frame's.
struct Painter {
  Frame frame;
  int32_t offsetX;   // column of the bitmap's left edge
  int32_t firstRow;  // of the bitmap's first line
  int32_t rowStep;   // from a line to the next: 1 or -1
  int32_t lines;     // of the bitmap
  int32_t left;      // what is painted
  int32_t top;
  int32_t right;
  int32_t bottom;
  Operation operation;
  Stroke strokes[kMissing + 1];  // by palette index
};

// ---- Painting a run -----------------------------------------------------------------------------

// A row of the frame, painted from `left` to `right`. On a hidden one nothing lies between them.
struct Row {
  uint32_t* pixels;
  int32_t left;
  int32_t right;
};

Row RowOf(const Painter& painter, int32_t line) {
  const int32_t y = painter.firstRow + painter.rowStep * line;
  if (y < painter.top || y >= painter.bottom) return {nullptr, painter.right, painter.right};
  return {painter.frame.pixels + y * painter.frame.width, painter.left, painter.right};
}

// Each of these paints the columns from `x` to the one before `end`, which is at most the row's
// right.

void PaintRun(const Row& row, int32_t x, int32_t end, const Stroke& stroke) {
  const int32_t begin = std::max(x, row.left);
  if (begin < end) BrushRun(row.pixels + begin, end - begin, stroke);
}

void PaintPair(const Row& row, int32_t x, int32_t end, const Stroke& even, const Stroke& odd) {
  for (int32_t c = std::max(x, row.left); c < end; ++c)
    row.pixels[c] = Brushed(row.pixels[c], (c - x) & 1 ? odd : even);
}

// Each pixel has an index of its own.
template <uint32_t bits>
void PaintIndices(const Row& row, int32_t x, int32_t end, const uint8_t* bytes,
                  const Stroke* strokes) {
  constexpr uint32_t kPerByte = 8 / bits;
  for (int32_t c = std::max(x, row.left); c < end; ++c) {
    const auto i = static_cast<uint32_t>(c - x);
    const uint32_t shift = 8 - bits - i % kPerByte * bits;
    const uint32_t index = bytes[i / kPerByte] >> shift & ((1u << bits) - 1);
    row.pixels[c] = Brushed(row.pixels[c], strokes[index]);
  }
}

// Each pixel has a colour of its own.
void PaintColours(const Row& row, int32_t x, int32_t end, const uint8_t* bytes,
                  const Operation& operation) {
  for (int32_t c = std::max(x, row.left); c < end; ++c)
    row.pixels[c] = Brushed(row.pixels[c], StrokeOf(operation, Colour(bytes + 3 * (c - x))));
}

// ---- Uncompressed lines -------------------------------------------------------------------------

void PaintPlainLine(const Painter& painter, uint32_t bitsPerPixel, const Row& row,
                    const uint8_t* bytes) {
  const int32_t x = painter.offsetX;
  switch (bitsPerPixel) {
    case 1:
      return PaintIndices<1>(row, x, row.right, bytes, painter.strokes);
    case 4:
      return PaintIndices<4>(row, x, row.right, bytes, painter.strokes);
    case 8:
      return PaintIndices<8>(row, x, row.right, bytes, painter.strokes);
    default:
      return PaintColours(row, x, row.right, bytes, painter.operation);
  }
}

// A line is padded to a multiple of four bytes; one that is cut off is missing.
void PaintPlain(const Dib& dib, const Painter& painter) {
  const uint64_t used = (static_cast<uint64_t>(dib.width) * dib.bitsPerPixel + 7) / 8;
  const uint64_t stride = (used + 3) / 4 * 4;
  const auto size = static_cast<uint64_t>(dib.end - dib.bits);
  for (int32_t line = 0; line < dib.height; ++line) {
    const Row row = RowOf(painter, line);
    const uint64_t offset = static_cast<uint64_t>(line) * stride;
    if (offset + used <= size) {
      PaintPlainLine(painter, dib.bitsPerPixel, row, dib.bits + offset);
    } else {
      PaintRun(row, row.left, row.right, painter.strokes[kMissing]);
    }
  }
}

// ---- Run lengths --------------------------------------------------------------------------------

// RLE4 (two indices a byte) and RLE8, each step two bytes or more:
//   count value        `count` pixels of the index or of the two indices in turn
//   0 0                on to the next line
//   0 1                the end
//   0 2 dx dy          on by so many pixels and lines
//   0 n bytes          n pixels one by one, padded to an even number of bytes
struct Step {
  enum Kind : uint32_t { Run, Singles, Jump, NextLine, End } kind;
  int32_t pixels = 0;              // that the step goes on by in its line
  uint32_t value = 0;              // of a run
  int32_t lines = 0;               // of a jump
  const uint8_t* bytes = nullptr;  // of single pixels
};

// Takes the next step from `in`. Bytes that break off within a step are the end; of single pixels
// those that are there count.
template <uint32_t bits>
Step TakeStep(const uint8_t*& in, const uint8_t* end) {
  if (end - in < 2) return {.kind = Step::End};
  const uint32_t count = in[0];
  const uint32_t value = in[1];
  in += 2;
  if (count > 0) return {.kind = Step::Run, .pixels = static_cast<int32_t>(count), .value = value};
  if (value == 0) return {.kind = Step::NextLine};
  if (value == 1 || (value == 2 && end - in < 2)) return {.kind = Step::End};
  const uint8_t* const bytes = in;
  if (value == 2) {
    in += 2;
    return {.kind = Step::Jump, .pixels = bytes[0], .lines = bytes[1]};
  }
  const uint32_t used = std::min((value * bits + 15) / 16 * 2, static_cast<uint32_t>(end - in));
  in += used;
  const uint32_t pixels = std::min(value, used * (8 / bits));
  return {.kind = Step::Singles, .pixels = static_cast<int32_t>(pixels), .bytes = bytes};
}

// Where the decoder stands. It only moves forward, so each pixel is painted exactly once.
struct Place {
  int32_t x;  // at most the painter's right
  int32_t line;
};

// Paints what lies between the two places, as missing.
void PaintMissing(const Painter& painter, Place from, Place to) {
  const Stroke& missing = painter.strokes[kMissing];
  for (; from.line < std::min(to.line, painter.lines); ++from.line) {
    PaintRun(RowOf(painter, from.line), from.x, painter.right, missing);
    from.x = painter.offsetX;
  }
  if (from.line < painter.lines) PaintRun(RowOf(painter, from.line), from.x, to.x, missing);
}

// A run's second byte is one index, or two in turn. Result: false when every pixel stays as it is.
template <uint32_t bits>
bool PaintValue(const Painter& painter, const Row& row, int32_t x, int32_t end, uint32_t value) {
  const Stroke& even = painter.strokes[bits == 4 ? value >> 4 : value];
  const Stroke& odd = painter.strokes[bits == 4 ? value & 15 : value];
  if (&even != &odd) {
    PaintPair(row, x, end, even, odd);
    return true;
  }
  if (ChangesNothing(even)) return false;
  PaintRun(row, x, end, even);
  return true;
}

struct LineEnd {
  Place reached;
  Place next;  // where the bytes go on
  bool changed;
};

// Paints the steps of one line, from `at` on.
template <uint32_t bits>
LineEnd PaintLine(const Painter& painter, Place at, const uint8_t*& in, const uint8_t* end) {
  const Row row = RowOf(painter, at.line);
  bool changed = false;
  for (;;) {
    const Step step = TakeStep<bits>(in, end);
    const int32_t x = std::min(at.x + step.pixels, row.right);
    switch (step.kind) {
      case Step::Run:
        changed |= PaintValue<bits>(painter, row, at.x, x, step.value);
        break;
      case Step::Singles:
        PaintIndices<bits>(row, at.x, x, step.bytes, painter.strokes);
        changed = true;
        break;
      case Step::Jump:
        return {at, {x, at.line + step.lines}, changed};
      case Step::NextLine:
        return {at, {painter.offsetX, at.line + 1}, changed};
      case Step::End:
        return {at, {painter.offsetX, painter.lines}, changed};
    }
    at.x = x;
  }
}

// How many times the `period` bytes before `in` are there again from `in` on. The lines above and
// below a layer's part are all alike and change nothing: to compare their bytes instead of reading
// them halves a picture's time.
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

template <uint32_t bits>
void PaintRle(const Dib& dib, const Painter& painter) {
  const uint8_t* in = dib.bits;
  Place at = {painter.offsetX, 0};
  while (at.line < painter.lines) {
    const uint8_t* const begin = in;
    const LineEnd line = PaintLine<bits>(painter, at, in, dib.end);
    const bool whole = at.x == painter.offsetX && line.reached.x == painter.right &&
                       line.next.x == painter.offsetX && line.next.line == at.line + 1;
    if (!whole) PaintMissing(painter, line.reached, line.next);
    at = line.next;
    if (whole && !line.changed) {
      const auto period = static_cast<int32_t>(in - begin);
      const int32_t lines = std::min(Repetitions(in, dib.end, period), painter.lines - at.line);
      in += lines * period;
      at.line += lines;
    }
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
  painter.firstRow = static_cast<int32_t>(offsetY) + (dib.topDown ? 0 : dib.height - 1);
  painter.rowStep = dib.topDown ? 1 : -1;
  painter.lines = dib.height;
  painter.left = static_cast<int32_t>(left);
  painter.top = static_cast<int32_t>(top);
  painter.right = static_cast<int32_t>(right);
  painter.bottom = static_cast<int32_t>(bottom);
  painter.operation = OperationOf(truth);
  painter.strokes[kMissing] = painter.operation.zeros;
  const uint32_t selectable = dib.bitsPerPixel == 24 ? 0 : 1u << dib.bitsPerPixel;
  for (uint32_t i = 0; i < selectable; ++i)
    painter.strokes[i] =
        StrokeOf(painter.operation, i < dib.paletteCount ? Colour(dib.palette + 4 * i) : 0);

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
