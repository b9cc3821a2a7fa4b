// How a raster operation changes pixels.
#pragma once

#include <cstdint>

namespace stm {

// The bits of a pixel that are its colour.
inline constexpr uint32_t kColourMask = 0x00FFFFFF;

// What a source colour makes of a destination pixel: (pixel & keep) ^ flip. Every operation on
// source and destination has this form once the source is known.
struct Stroke {
  uint32_t keep;
  uint32_t flip;
};

constexpr bool ChangesNothing(const Stroke& stroke) {
  return stroke.keep == kColourMask && stroke.flip == 0;
}

constexpr uint32_t Brushed(uint32_t pixel, const Stroke& stroke) {
  return (pixel & stroke.keep) ^ stroke.flip;
}

// On 32-bit processors the arguments travel in registers only when asked to.
#ifdef __i386__
#define STM_IN_REGISTERS __attribute__((regparm(3)))
#else
#define STM_IN_REGISTERS
#endif

// The same stroke for `count` pixels side by side, kLongRun of them or more.
inline constexpr int32_t kLongRun = 8;
STM_IN_REGISTERS void BrushLongRun(uint32_t* pixel, int32_t count, const Stroke& stroke);

// The same for any number; none for one that is negative.
inline void BrushRun(uint32_t* pixel, int32_t count, const Stroke& stroke) {
  if (count >= kLongRun) {
    BrushLongRun(pixel, count, stroke);
  } else {
    for (; count > 0; --count, ++pixel)
      *pixel = Brushed(*pixel, stroke);
  }
}

}  // namespace stm
