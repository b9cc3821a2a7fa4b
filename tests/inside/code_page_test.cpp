// The checksums are those of the system on Windows; run there, this proves them.
#include "checksum.h"
#include "doctest/doctest.h"
#include "platform/windows_api.h"
#include "support.h"
#include "thread_language.h"

namespace {

struct PageCase {
  UINT page;
  uint32_t written, read;
};

const PageCase kPages[] = {
    //  page  checksum of all units written, of all byte pairs read
    {932, 0xDF51F030, 0x57DD12D4},
    {1250, 0xA6D2D068, 0xD145FCED},
    {1252, 0xE278C969, 0x54E03051},
};

// Each unit alone.
uint32_t WriteAllUnits(UINT page) {
  test::Checksum sum;
  for (uint32_t unit = 0; unit < 0x10000; ++unit) {
    const auto wide = static_cast<WCHAR>(unit);
    char bytes[4];
    const int length = WideCharToMultiByte(page, 0, &wide, 1, bytes, 4, nullptr, nullptr);
    sum.Add(static_cast<uint32_t>(length));
    sum.Add(bytes, static_cast<size_t>(length));
  }
  return sum.value;
}

// Each pair of bytes, which covers bytes alone, and lead bytes before anything and at the end.
uint32_t ReadAllPairs(UINT page) {
  test::Checksum sum;
  for (uint32_t pair = 0; pair < 0x10000; ++pair) {
    const char bytes[2] = {static_cast<char>(pair >> 8), static_cast<char>(pair)};
    WCHAR units[4];
    const int length = MultiByteToWideChar(page, 0, bytes, 2, units, 4);
    sum.Add(static_cast<uint32_t>(length));
    sum.Add(units, static_cast<size_t>(length) * sizeof *units);
  }
  return sum.value;
}

}  // namespace

TEST_CASE("every unit is written, and every pair of bytes read, as the system does") {
  for (const PageCase& row : kPages) {
    CAPTURE(row.page);
    CHECK(WriteAllUnits(row.page) == row.written);
    CHECK(ReadAllPairs(row.page) == row.read);
  }
}

TEST_CASE("letters get their capitals, signs and figures stay") {
  test::SetThreadLanguage(0x0409);
  if (GetACP() != 1252) return;  // on Windows the thread does not choose it
  test::Checksum sum;
  for (uint32_t code = 1; code < 0x100; ++code) {
    char text[] = {static_cast<char>(code), 'z', '\0'};
    CHECK(CharUpperA(text) == text);
    sum.Add(text, 2);
  }
  CHECK(sum.value == 0x9A5A1F9F);
}

TEST_CASE("a conversion that does not fit fails; the length needed can be asked for") {
  const WCHAR units[] = {0x4E9C, 'A', 0x4E9C, 0};
  test::GuardedBytes five(std::string(5, 'x'));
  CHECK(WideCharToMultiByte(932, 0, units, 3, nullptr, 0, nullptr, nullptr) == 5);
  CHECK(WideCharToMultiByte(932, 0, units, 3, five.data(), 5, nullptr, nullptr) == 5);
  CHECK(std::string(five.data(), 5) ==
        "\x88\x9F"
        "A"
        "\x88\x9F");
  CHECK(WideCharToMultiByte(932, 0, units, -1, nullptr, 0, nullptr, nullptr) == 6);
  CHECK(WideCharToMultiByte(932, 0, units + 3, -1, nullptr, 0, nullptr, nullptr) == 1);

  test::GuardedBytes four(std::string(4, 'x'));
  CHECK(WideCharToMultiByte(932, 0, units, 3, four.data(), 4, nullptr, nullptr) == 0);
  CHECK(GetLastError() == ERROR_INSUFFICIENT_BUFFER);
  CHECK(std::string(four.data(), 4) ==
        "\x88\x9F"
        "Ax");

  CHECK(MultiByteToWideChar(932, 0,
                            "\x88\x9F"
                            "A",
                            -1, nullptr, 0) == 3);
  WCHAR wide[2] = {};
  CHECK(MultiByteToWideChar(932, 0,
                            "\x88\x9F"
                            "A",
                            -1, wide, 2) == 0);
  CHECK(GetLastError() == ERROR_INSUFFICIENT_BUFFER);
  CHECK(wide[1] == 'A');
  CHECK(MultiByteToWideChar(932, 0, "A", 0, wide, 2) == 0);
  CHECK(GetLastError() == ERROR_INVALID_PARAMETER);
  CHECK(MultiByteToWideChar(12345, 0, "A", 1, wide, 2) == 0);
}
