#include "doctest/doctest.h"
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
  CHECK(version.versionWord3 == 0x00000100);
  CHECK(version.versionWord6 == 0x000A001E);
  CHECK(PatGetDllVersion(nullptr) == 0);
}
