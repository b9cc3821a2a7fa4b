#include "records/scanners.h"

#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct FieldCase {
  const char* why;
  std::string input;
  char delimiter1;
  char delimiter2;
  uint32_t limit;
  std::string scanned;
  std::string read;
  char delimiter;
  uint32_t left;
};

const FieldCase kFields[] = {
    {"up to the delimiter", "12\r99", '\r', '\r', 8, "12", "12", '\r', 2},
    {"cut below the limit", "abcdefghi", '\r', '\r', 8, "abcdefg", "abcdef", '\0', 2},
    {"the delimiter is the last byte that fits", "abcdef\rh", '\r', '\r', 8, "abcdef", "abcdef",
     '\r', 1},
    {"the delimiter comes one byte too late", "abcdefg\r", '\r', '\r', 8, "abcdefg", "abcdef", '\0',
     1},
    {"the first of two delimiters", "1,2\r", ',', '\r', 8, "1", "1", ',', 2},
    {"the second of two delimiters", "1\r2,", ',', '\r', 8, "1", "1", '\r', 2},
    {"a zero byte is a byte", "1\0\x32\r"s, '\r', '\r', 8, "1\0\x32"s, "1\0\x32"s, '\r', 0},
    {"the input ends first", "12", '\r', '\r', 8, "12", "12", '\0', 0},
    {"an empty field", "\r5", '\r', '\r', 8, "", "", '\r', 1},
    {"nothing to read", "", '\r', '\r', 8, "", "", '\0', 0},
    {"room for a delimiter only", "12\r", '\r', '\r', 2, "1", "", '\0', 2},
};

}  // namespace

TEST_CASE("a field ends at its delimiter, its limit or the input's end") {
  for (const FieldCase& row : kFields) {
    CAPTURE(row.why);
    test::GuardedBytes bytes(row.input);
    const stm::Input from{bytes.data(), bytes.data() + bytes.size()};
    stm::Input scanning = from;
    stm::Input reading = from;
    const stm::Field scanned = stm::ScanField(scanning, row.limit, row.delimiter1, row.delimiter2);
    const stm::Field read = stm::ReadField(reading, row.limit, row.delimiter1, row.delimiter2);
    CHECK(scanned.text == row.scanned);
    CHECK(read.text == row.read);
    CHECK(scanned.delimiter == row.delimiter);
    CHECK(read.delimiter == row.delimiter);
    CHECK(stm::Left(scanning) == row.left);
    CHECK(reading.position == scanning.position);
  }
}

TEST_CASE("a decimal number ends at the first byte that is no digit") {
  struct {
    const char* text;
    uint32_t value;
  } const rows[] = {
      {"045x", 45}, {"x45", 0},          {"", 0},           {"-1", 0}, {" 7", 0},
      {"7\xB2", 7}, {"4294967295", ~0u}, {"4294967297", 1},
  };
  for (const auto& row : rows) {
    CAPTURE(row.text);
    CHECK(stm::ParseDecimal(row.text) == row.value);
  }
}

TEST_CASE("a block letter needs an escape before it and a byte behind that") {
  struct {
    std::string bytes;
    int letter;
  } const rows[] = {
      {"\x1BS", 'S'}, {"\x1B ", ' '}, {"\x1B\xC0", -64}, {"S\x1B", -1}, {"", -1}, {"\x1B", 0},
  };
  for (const auto& row : rows) {
    CAPTURE(row.bytes);
    test::GuardedBytes bytes(row.bytes);
    CHECK(stm::BlockLetter({bytes.data(), bytes.data() + bytes.size()}) == row.letter);
  }
}
