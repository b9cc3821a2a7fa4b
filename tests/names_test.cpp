#include "doctest/doctest.h"
#include "stmdata/languages.h"
#include "support.h"

TEST_CASE("a model's description name is found by its key") {
  struct Row {
    const char* key;
    uint32_t result;
    const char* name;
    uint8_t code;
  };
  const Row rows[] = {
      {"ZENTA M80", 1, "ORLEX ZENTA M80", 0},
      {"ZENTA C210", 1, "ORLEX ZENTA C210", 103},
      {"ZENTA C400 D", 1, "ORLEX ZENTA C400 D", 120},
      {"", 1, "", 255},
      {"zenta c210", 0, nullptr, 0},
      {"ZENTA C21", 0, nullptr, 0},
      {"ZENTA C210 ", 0, nullptr, 0},
  };
  for (const Row& row : rows) {
    CAPTURE(row.key);
    const std::string untouched(32, static_cast<char>(test::kPoison));
    test::GuardedBytes name(untouched);
    uint8_t code = test::kPoison;
    CHECK(bGetDesName(row.key, name.data(), &code) == row.result);
    if (row.result) {
      CHECK(std::string(name.data()) == row.name);
      CHECK(code == row.code);
    } else {
      CHECK(std::string(name.data(), 32) == untouched);
      CHECK(code == test::kPoison);
    }
  }
  char name[32] = "x";
  uint8_t code = 7;
  CHECK(bGetDesName(nullptr, name, &code) == 0);
  CHECK(bGetDesName("", nullptr, &code) == 0);
  CHECK(bGetDesName("", name, nullptr) == 0);
  CHECK(name[0] == 'x');
  CHECK(code == 7);
}

TEST_CASE("the version words leave the record's first field alone") {
  PatVersionInfo version;
  std::memset(&version, test::kPoison, sizeof version);
  CHECK(PatGetDllVersion(&version) == 1);
  CHECK(version.reserved == 0xA5A5A5A5);
  CHECK(version.versionWord1 == 0x01010000);
  CHECK(version.versionWord2 == 0x01010000);
  CHECK(version.versionWord3 == 0x00000100);
  CHECK(version.versionWord4 == 0x01000000);
  CHECK(version.versionWord5 == 0x00000002);
  CHECK(version.versionWord6 == 0x000A001E);
  CHECK(PatGetDllVersion(nullptr) == 0);
}

TEST_CASE("a device has a name in the language that was set") {
  struct Row {
    const char* language;
    uint32_t device;
    std::string name;
  };
  const Row rows[] = {
      {"EN", 164, "Duplex Unit"},
      {"EN", 163, "Option Tray"},
      {"JP", 164, "\x97\xBC\x96\xCA\xD5\xC6\xAF\xC4"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.language);
    CAPTURE(row.device);
    char language[] = {row.language[0], row.language[1], '\0'};
    PatSetLocale(language);
    const auto needed = static_cast<uint32_t>(row.name.size() + 1);
    for (const uint32_t capacity : {0u, 1u, needed - 1, needed, needed + 1, 0xFFFFFFFFu}) {
      CAPTURE(capacity);
      const std::string untouched(capacity < 64 ? capacity : 32, static_cast<char>(test::kPoison));
      test::GuardedBytes name(untouched);
      uint32_t size = capacity;
      CHECK(PatGetDeviceName(row.device, name.data(), &size) == (capacity >= needed));
      CHECK(size == needed);
      const std::string expected = capacity < needed ? "" : row.name + '\0';
      CHECK(std::string(name.data(), untouched.size()) ==
            expected + untouched.substr(expected.size()));
    }
  }
}

TEST_CASE("every language's device names fit 32 bytes") {
  for (const LocaleRow& language : LocaleTable) {
    CAPTURE(language.code);
    std::string code = language.code;
    PatSetLocale(code.data());
    for (const uint32_t device : {163u, 164u}) {
      test::GuardedBytes text(std::string(32, static_cast<char>(test::kPoison)));
      uint32_t size = 32;
      CHECK(PatGetDeviceName(device, text.data(), &size) == 1);
      CHECK(size > 1);
      CHECK(size == std::strlen(text.data()) + 1);
    }
  }
}

TEST_CASE("a device without a name or a place for it is refused") {
  char name[32] = "x";
  uint32_t size = 32;
  for (const uint32_t device : {0u, 1u, 162u, 165u, 927u, 0xFFFFFFFFu})
    CHECK(PatGetDeviceName(device, name, &size) == 0);
  CHECK(PatGetDeviceName(164, nullptr, &size) == 0);
  CHECK(PatGetDeviceName(164, name, nullptr) == 0);
  CHECK(name[0] == 'x');
  CHECK(size == 32);
}
