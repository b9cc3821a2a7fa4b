// A checksum (FNV-1a) of long results, so that two systems can be held to the same bytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace test {

struct Checksum {
  uint32_t value = 0x811C9DC5;

  void Add(const void* bytes, size_t count) {
    for (size_t i = 0; i < count; ++i)
      value = (value ^ static_cast<const uint8_t*>(bytes)[i]) * 0x01000193;
  }
  void Add(uint32_t number) { Add(&number, sizeof number); }
};

}  // namespace test
