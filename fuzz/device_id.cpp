// A Device ID into both records: with its exact length, and with a zero byte and a length that
// promises more.
#include "record_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto* text = reinterpret_cast<const char*>(data);
  const auto length = static_cast<uint32_t>(size);
  PrnInfoEx record{};
  PrnInfo flat = fuzz::PoisonedFlat();
  fuzz::Require(SetModelInfoExFromDeviceID(&record, text, length) == 1);
  fuzz::CheckRecord(record);
  fuzz::Require(SetModelInfoFromDeviceID(&flat, text, length) == 1);
  fuzz::CheckFlat(flat);
  fuzz::Require(flat.modelCode == record.modelCode);

  auto* terminated = static_cast<char*>(std::malloc(size + 1));
  std::memcpy(terminated, data, size);
  terminated[size] = '\0';
  const uint32_t languages = record.emulationCount;
  fuzz::Require(SetModelInfoExFromDeviceID(&record, terminated, length + 4096) == 1);
  std::free(terminated);
  fuzz::CheckRecord(record);
  fuzz::Require(record.emulationCount == languages);
  ReleasePrnInfoEx(&record);
  return 0;
}
