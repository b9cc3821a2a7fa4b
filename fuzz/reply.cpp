// One reply into a fresh record.
#include "record_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  PrnInfoEx record{};
  const auto* reply = fuzz::ReplyOf(data, size);
  const uint32_t result = SetPrnInfoExFromReadbackCmd(&record, reply, static_cast<int32_t>(size));
  fuzz::Require(result == fuzz::IsWalked(data, size));
  fuzz::CheckRecord(record);
  fuzz::Require(record.recordTag == 0 && record.structSize == 0);
  ReleasePrnInfoEx(&record);
  return 0;
}
