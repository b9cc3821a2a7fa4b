#include "records/scanners.h"

#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct ScanCase {
  const char* why;
  std::string input;
  char delimiter1;
  char delimiter2;
  uint16_t limit;
  std::string kept;
};

const ScanCase kScans[] = {
    {"the delimiter is kept", "12\r99", '\r', '\r', 8, "12\r"},
    {"cut below the limit", "abcdefghi", '\r', '\r', 8, "abcdefg"},
    {"the delimiter is the last byte that fits", "abcdef\rh", '\r', '\r', 8, "abcdef\r"},
    {"the delimiter comes one byte too late", "abcdefg\r", '\r', '\r', 8, "abcdefg"},
    {"the first of two delimiters", "1,2\r", ',', '\r', 8, "1,"},
    {"the second of two delimiters", "1\r2,", ',', '\r', 8, "1\r"},
    {"a zero byte is a byte", "1\0\x32\r"s, '\r', '\r', 8, "1\0\x32\r"s},
    {"the input ends first", "12", '\r', '\r', 8, "12"},
    {"nothing to read", "", '\r', '\r', 8, ""},
    {"room for the zero byte only", "12\r", '\r', '\r', 1, ""},
};

}  // namespace

TEST_CASE("a scan keeps a field, its delimiter and a zero byte, and nothing past the limit") {
  for (const ScanCase& row : kScans) {
    CAPTURE(row.why);
    test::GuardedBytes input(row.input);
    test::GuardedBytes field(std::string(row.limit, static_cast<char>(test::kPoison)));
    const stm::Input from{input.data(), input.data() + input.size()};
    const uint32_t count =
        stm::ScanField2(from, row.delimiter1, row.delimiter2, row.limit, field.data());
    CHECK(count == row.kept.size());
    CHECK(std::string(field.data(), count) == row.kept);
    CHECK(field.data()[count] == '\0');
    CHECK(field.neighboursUntouched());
  }
  test::GuardedBytes nowhere("");
  const char digits[] = "12";
  CHECK(stm::ScanField({digits, digits + 2}, '\r', 0, nowhere.data()) == 0);
}

TEST_CASE("a field that fills its limit loses the delimiter's place and no more of the input") {
  const char text[] = "1234567\r5\n";
  stm::Input input{text, text + sizeof text - 1};
  const auto cut = stm::ReadField<8>(input, '\r');
  CHECK(std::string(cut.text) == "123456");
  CHECK(cut.delimiter == '\0');
  const auto empty = stm::ReadField<8>(input, '\r');
  CHECK(std::string(empty.text) == "");
  CHECK(empty.delimiter == '\r');
  const auto last = stm::ReadField<8>(input, '\r', '\n');
  CHECK(std::string(last.text) == "5");
  CHECK(last.delimiter == '\n');
  CHECK(stm::Left(input) == 0);
  CHECK(stm::ReadField<8>(input, '\r').text[0] == '\0');
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
