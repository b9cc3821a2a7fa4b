// Any bytes as a packed bitmap, painted through a clipped blit and compared, pixel by pixel, with a
// plain decoder that expands the whole picture first.
//
// Input: which of the header's fields to set (1 byte), placement and operation (8 bytes), then the
// bitmap. Most inputs get a header that is accepted, so that the pixel bytes are reached. Frames
// are wide enough for every way of painting a run, and low: time goes to decoding.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "platform/linux/dib.h"

namespace {

constexpr int32_t kWidth = 48;  // of the frame
constexpr int32_t kHeight = 5;
constexpr int32_t kMostPixels = 1024;  // of a bitmap that is compared
constexpr uint32_t kBackground = 0x00123456;
constexpr uint32_t kOperations[] = {0x00CC0020, 0x00EE0086, 0x008800C6, 0x00BB0226, 0x00660046};

// The plain decoder guides no input, so it is left out of the coverage: that doubles the speed.
#define UNTRACED __attribute__((no_sanitize("coverage")))

// The palette index of every pixel, top row first; -1 where the bytes leave it out.
using Indices = int16_t[kMostPixels];

UNTRACED void ExpandRle(const stm::Dib& dib, Indices& indices) {
  std::fill_n(indices, dib.width * dib.height, -1);
  const bool nibbles = dib.bitsPerPixel == 4;
  int32_t x = 0;
  int32_t y = dib.height - 1;
  const auto put = [&](int index) UNTRACED {
    if (x < dib.width && y >= 0) indices[y * dib.width + x] = static_cast<int16_t>(index);
    ++x;
  };
  const uint8_t* in = dib.bits;
  while (dib.end - in >= 2) {
    const int count = in[0];
    const int value = in[1];
    in += 2;
    if (count > 0) {
      for (int i = 0; i < count; ++i)
        put(!nibbles ? value : i % 2 ? value & 15 : value >> 4);
    } else if (value == 0) {
      x = 0;
      --y;
    } else if (value == 1) {
      break;
    } else if (value == 2) {
      if (dib.end - in < 2) break;
      x += in[0];
      y -= in[1];
      in += 2;
    } else {
      for (int i = 0; i < value; ++i) {
        const uint8_t* byte = in + (nibbles ? i / 2 : i);
        if (byte >= dib.end) return;
        put(!nibbles ? *byte : i % 2 ? *byte & 15 : *byte >> 4);
      }
      const int bytes = nibbles ? (value + 1) / 2 : value;
      const int padded = bytes + bytes % 2;
      if (dib.end - in < padded) break;
      in += padded;
    }
  }
}

UNTRACED uint32_t Combine(uint32_t rop, uint32_t source, uint32_t destination) {
  uint32_t result = 0;
  for (uint32_t at = 0; at < 4; ++at) {
    const uint32_t here = (at & 2 ? source : ~source) & (at & 1 ? destination : ~destination);
    if (rop >> (16 + at) & 1) result |= here & 0x00FFFFFF;
  }
  return result;
}

UNTRACED uint32_t ColourAt(const stm::Dib& dib, int index) {
  if (index < 0 || static_cast<uint32_t>(index) >= dib.paletteCount) return 0;
  const uint8_t* entry = dib.palette + 4 * index;
  return entry[0] | entry[1] << 8 | entry[2] << 16;
}

UNTRACED void Require(bool condition) {
  if (!condition) std::abort();
}

UNTRACED void RequirePixels(const stm::Dib& dib, const stm::Placement& to, uint32_t rop,
                            const uint32_t* pixels) {
  Indices indices;
  ExpandRle(dib, indices);
  for (int32_t y = 0; y < kHeight; ++y) {
    for (int32_t x = 0; x < kWidth; ++x) {
      const int32_t fromX = x - to.x + to.sourceX;
      const int32_t fromY = y - to.y + to.sourceY;
      const bool inside = x >= to.x && x < to.x + to.width && y >= to.y && y < to.y + to.height &&
                          fromX >= 0 && fromX < dib.width && fromY >= 0 && fromY < dib.height;
      const uint32_t expected =
          inside ? Combine(rop, ColourAt(dib, indices[fromY * dib.width + fromX]), kBackground)
                 : kBackground;
      Require(pixels[y * kWidth + x] == expected);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr size_t kOwn = 9;
  if (size < kOwn) return 0;
  // A block of its own, so that reading one byte too far is seen.
  const size_t count = size - kOwn;
  const std::unique_ptr<uint8_t[]> bytes(new uint8_t[count]);
  std::memcpy(bytes.get(), data + kOwn, count);
  const uint8_t choice = data[0];
  if (choice < 224 && count >= 40) {
    constexpr uint8_t depths[] = {4, 8, 4, 8, 1, 4, 8, 24};
    const uint8_t kind = choice % 8;
    std::memset(bytes.get(), 0, 40);
    bytes[0] = 40;
    bytes[4] = static_cast<uint8_t>(1 + data[1] % 64);
    bytes[8] = static_cast<uint8_t>(1 + data[2] % 8);
    bytes[14] = depths[kind];
    bytes[16] = kind >= 4 ? stm::DibPlain : depths[kind] == 4 ? stm::DibRle4 : stm::DibRle8;
    bytes[32] = choice / 8 ? choice / 8 : 1;
  }
  stm::Dib dib;
  if (!stm::ReadDib(bytes.get(), static_cast<uint32_t>(count), &dib)) return 0;
  if (dib.height > 1024) return 0;  // hidden rows are only walked over: nothing but time

  const auto number = [&](size_t i) { return static_cast<int8_t>(data[i]); };
  const stm::Placement to{number(3),        number(4) / 16, data[5] % 64 - 2,
                          data[6] % 16 - 1, number(7) / 2,  number(8) / 16};
  const uint32_t rop = kOperations[data[2] / 8 % std::size(kOperations)];
  // Of its own as well, for the pixels beyond it.
  const std::unique_ptr<uint32_t[]> pixels(new uint32_t[kWidth * kHeight]);
  std::fill_n(pixels.get(), kWidth * kHeight, kBackground);
  Require(stm::PaintDib(dib, {pixels.get(), kWidth, kHeight}, to, rop));

  const bool small = static_cast<int64_t>(dib.width) * dib.height <= kMostPixels;
  if (dib.compression != stm::DibPlain && small) RequirePixels(dib, to, rop, pixels.get());
  return 0;
}
