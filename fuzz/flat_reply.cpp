// One reply into the flat record.
#include "record_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  PrnInfo record = fuzz::PoisonedFlat();
  const uint32_t result = SetPrnInfoFromReadbackCmd(&record, reinterpret_cast<const char*>(data),
                                                    static_cast<int32_t>(size));
  fuzz::Require(result == fuzz::IsWalked(data, size));
  fuzz::CheckFlat(record);
  return 0;
}
