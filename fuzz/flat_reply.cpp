// One reply into the flat record.
#include "record_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  PrnInfo record = fuzz::PoisonedFlat();
  const char* reply = fuzz::ReplyOf(data, size);
  const uint32_t result = SetPrnInfoFromReadbackCmd(&record, reply, static_cast<int32_t>(size));
  fuzz::Require(result == fuzz::IsWalked(data, size));
  fuzz::CheckFlat(record);
  return 0;
}
