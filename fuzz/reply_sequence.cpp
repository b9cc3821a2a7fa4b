// Replies one after the other into one record; a byte 0xFF stands between them.
#include "record_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  PrnInfoEx record{};
  const uint8_t* end = data + size;
  while (data < end) {
    const auto* mark = static_cast<const uint8_t*>(std::memchr(data, 0xFF, size_t(end - data)));
    const uint8_t* stop = mark ? mark : end;
    const auto length = static_cast<size_t>(stop - data);
    // A block of its own, so that a read past this reply is a read past its memory.
    auto* reply = static_cast<char*>(std::calloc(length ? length : 1, 1));
    std::memcpy(reply, data, length);
    SetPrnInfoExFromReadbackCmd(&record, reply, static_cast<int32_t>(length));
    std::free(reply);
    fuzz::CheckRecord(record);
    data = mark ? mark + 1 : end;
  }
  ReleasePrnInfoEx(&record);
  return 0;
}
