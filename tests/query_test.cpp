#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct QueryCase {
  const char* why;
  uint32_t groups;
  std::string expected;
};

const std::string kOptions = "\033A\n\033B\n\033C\n\033D\n\033M\n";

const QueryCase kQueries[] = {
    {"no group", 0, "\x12\x14\x12\033 "},
    {"groups without request bytes", GroupStatus | GroupStatusList | GroupDeviceId | 0x40000000,
     "\x12\x14\x12\033 "},
    {"duplex asks for all options", GroupDuplex, "\x12\x14\x12" + kOptions + "\033 "},
    {"options", GroupOptions, "\x12\x14\x12" + kOptions + "\033 "},
    {"duplex and options ask once", GroupDuplex | GroupOptions,
     "\x12\x14\x12" + kOptions + "\033 "},
    {"every group, in the printer's order", 0xFFFFFFFF,
     "\x12\x14\x12\033V\n\033T\n\033Z\n\033H\n\033L\n" + kOptions + "\033E\n\033F\n\033 "},
};

}  // namespace

TEST_CASE("the query holds the request bytes of its groups") {
  for (const QueryCase& row : kQueries) {
    CAPTURE(row.why);
    const auto length = static_cast<uint32_t>(row.expected.size());
    for (uint32_t capacity : {0u, 1u, length - 1, length, length + 1}) {
      CAPTURE(capacity);
      test::GuardedBytes buffer(std::string(capacity, static_cast<char>(test::kPoison)));
      uint32_t size = capacity;
      SetLastError(test::kMarker);
      const uint32_t result = CreateQueryCommand(row.groups, buffer.data(), &size);
      CHECK(size == length);
      if (capacity < length) {
        CHECK(result == 0);
        CHECK(GetLastError() == ERROR_INSUFFICIENT_BUFFER);
        CHECK(std::string(buffer.data(), capacity) ==
              std::string(capacity, static_cast<char>(test::kPoison)));
      } else {
        CHECK(result == 1);
        CHECK(GetLastError() == test::kMarker);
        CHECK(std::string(buffer.data(), length) == row.expected);
        if (capacity > length) CHECK(buffer.data()[length] == '\0');
      }
    }
  }
}

TEST_CASE("a query without a place for it is refused") {
  char buffer[64];
  uint32_t size = 41;
  SetLastError(test::kMarker);
  CHECK(CreateQueryCommand(0xFFFFFFFF, buffer, nullptr) == 0);
  CHECK(GetLastError() == ERROR_INVALID_ADDRESS);
  SetLastError(test::kMarker);
  CHECK(CreateQueryCommand(0xFFFFFFFF, nullptr, &size) == 0);
  CHECK(GetLastError() == ERROR_INVALID_ADDRESS);
  CHECK(size == 41);
  size = 40;
  CHECK(CreateQueryCommand(0xFFFFFFFF, nullptr, &size) == 0);
  CHECK(GetLastError() == ERROR_INSUFFICIENT_BUFFER);
  CHECK(size == 41);
}
