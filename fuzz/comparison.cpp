// The comparison of two records of any contents: it has no sides, and a record agrees with itself.
#include "source.h"

namespace {

uint32_t Compare(const PrnInfoEx& first, const PrnInfoEx& second, uint32_t groups) {
  uint32_t equal = 7;
  fuzz::Require(PatCmpPrnInfoEX(&first, &second, groups, &equal) == 1);
  fuzz::Require(equal <= 1);
  return equal;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz::Source source(data, size);
  const uint32_t groups = source.Word();
  const size_t half = size / 2;
  fuzz::Source left(data, half);
  // Often the second record is drawn from the same bytes, but for some of them.
  std::vector<uint8_t> bytes(data, data + half);
  for (uint32_t changes = source.Below(4); changes > 0 && half > 0; --changes)
    bytes[source.Word() % half] = source.Byte();
  const bool alike = source.Below(4) != 0;
  fuzz::Source right(alike ? bytes.data() : data + half, alike ? half : size - half);
  fuzz::ListRecord first, second;
  first.Draw(left);
  second.Draw(right);

  fuzz::Require(Compare(first, first, ~0u) == 1);
  fuzz::Require(Compare(first, second, groups) == Compare(second, first, groups));
  if (first.IsEndless() || second.IsEndless()) return 0;
  // All groups together agree when each of them does.
  uint32_t every = 1;
  for (uint32_t group = 1; group != 0; group <<= 1)
    every &= Compare(first, second, group);
  fuzz::Require(Compare(first, second, ~0u) == every);
  return 0;
}
