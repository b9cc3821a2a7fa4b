// The innermost loop of a picture, which takes a third of its time. The aim is that sixteen layers
// take no longer than as many plain copies of the frame (bench/picture_bench.cpp); one pixel at a
// time they take half as long again.
#include "platform/linux/brush.h"

#include <cstring>

namespace stm {

// Pixels that are combined at once.
using Block = uint32_t __attribute__((vector_size(kLongRun * sizeof(uint32_t))));

// The build asks for no particular processor: the compiler writes one brush for each of these, and
// the loader takes the first that the processor knows. Where registers are narrower than a block,
// the compiler takes several.
#if defined(__i386__) || defined(__x86_64__)
#define STM_FOR_EACH_PROCESSOR __attribute__((target_clones("avx2", "sse2", "default")))
#else
#define STM_FOR_EACH_PROCESSOR
#endif

// The last block may overlap the one before it, and writes the same there: it is read before
// anything is written.
STM_FOR_EACH_PROCESSOR STM_IN_REGISTERS void BrushLongRun(uint32_t* pixel, int32_t count,
                                                          const Stroke& stroke) {
  const Block keep = stroke.keep - Block{};
  const Block flip = stroke.flip - Block{};
  uint32_t* const last = pixel + count - kLongRun;
  if (stroke.keep == 0) {
#pragma GCC unroll 4
    for (; pixel < last; pixel += kLongRun)
      std::memcpy(pixel, &flip, sizeof flip);
    std::memcpy(last, &flip, sizeof flip);
    return;
  }
  Block end;
  std::memcpy(&end, last, sizeof end);
  end = (end & keep) ^ flip;
  for (; pixel < last; pixel += kLongRun) {
    Block block;
    std::memcpy(&block, pixel, sizeof block);
    block = (block & keep) ^ flip;
    std::memcpy(pixel, &block, sizeof block);
  }
  std::memcpy(last, &end, sizeof end);
}

}  // namespace stm
