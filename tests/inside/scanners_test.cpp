#include "records/block.h"

#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct FieldCase {
  const char* why;
  std::string input;
  char delimiter1;
  char delimiter2;
  uint32_t most;
  std::string text;
  char delimiter;
  uint32_t left;
};

const FieldCase kFields[] = {
    {"up to the delimiter", "12\r99", '\r', '\r', 7, "12", '\r', 2},
    {"cut where it takes too much", "abcdefghi", '\r', '\r', 7, "abcdefg", '\0', 2},
    {"the delimiter is the last byte that fits", "abcdef\rh", '\r', '\r', 7, "abcdef", '\r', 1},
    {"the delimiter comes one byte too late", "abcdefg\r", '\r', '\r', 7, "abcdefg", '\0', 1},
    {"the first of two delimiters", "1,2\r", ',', '\r', 7, "1", ',', 2},
    {"the second of two delimiters", "1\r2,", ',', '\r', 7, "1", '\r', 2},
    {"a zero byte is a byte", "1\0\x32\r"s, '\r', '\r', 7, "1\0\x32"s, '\r', 0},
    {"the input ends first", "12", '\r', '\r', 7, "12", '\0', 0},
    {"an empty field", "\r5", '\r', '\r', 7, "", '\r', 1},
    {"nothing to read", "", '\r', '\r', 7, "", '\0', 0},
    {"a single byte", "12\r", '\r', '\r', 1, "1", '\0', 2},
};

}  // namespace

TEST_CASE("a field ends at its delimiter, where it takes too much, or at the input's end") {
  for (const FieldCase& row : kFields) {
    CAPTURE(row.why);
    test::GuardedBytes bytes(row.input);
    stm::Input input{bytes.data(), bytes.data() + bytes.size()};
    const stm::Field field = stm::ScanField(input, row.most, row.delimiter1, row.delimiter2);
    CHECK(field.text == row.text);
    CHECK(field.delimiter == row.delimiter);
    CHECK(stm::Left(input) == row.left);
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

TEST_CASE("a block letter needs an escape before it") {
  struct {
    std::string bytes;
    int letter;
  } const rows[] = {
      {"\033S", 'S'}, {"\033 ", ' '}, {"\033\xC0", -64}, {"S\033", -1}, {"", -1}, {"\033", 0},
  };
  for (const auto& row : rows) {
    CAPTURE(row.bytes);
    test::GuardedBytes bytes(row.bytes);
    CHECK(stm::BlockLetter({bytes.data(), bytes.data() + bytes.size()}) == row.letter);
  }
}

TEST_CASE("a block is scanned up to its LF or its limit and read field by field") {
  const std::string longName(260, 'n');
  const struct {
    const char* why;
    std::string bytes;
    uint32_t taken;
    uint32_t crCount;
    std::string fields;  // of 7 bytes at most, each followed by a bar
    std::string rest;    // of the whole block, of 6 bytes at most
  } rows[] = {
      {"up to the LF", "\033T\r1\r22\n\033", 8, 2, "1|22|", "1\r22"},
      {"cut off before its LF", "\033T\r1\r22", 0, 0, "", ""},
      {"without fields", "\033T\r\n", 4, 1, "|", ""},
      {"without a CR in its head", "\033T\n", 3, 0, "", ""},
      {"another byte in the CR's place", "\033Tx1\r2\n", 7, 1, "1|2|", "1\r2"},
      {"an empty last field", "\033T\r1\r\n", 6, 2, "1||", "1\r"},
      {"six characters fit", "\033T\r123456\r7\n", 12, 2, "123456|7|", "123456"},
      {"seven lose one and leave the CR", "\033T\r1234567\r8\n", 13, 2, "123456||8|", "123456"},
      {"eight lose one and leave one", "\033T\r12345678\r9\n", 14, 2, "123456|8|9|", "123456"},
      {"a zero byte at a field's start ends them", "\033T\r1\r\0\r2\n"s, 9, 3, "1|", "1\r\0\r2"s},
      {"a zero byte inside a field does not", "\033T\r1\0\r2\n"s, 8, 2, "1\0|2|"s, "1\0\r2"s},
      {"an end marker is no end of this block", "\033T\r1\033 \r2\n", 9, 2, "1\033 |2|",
       "1\033 \r2"},
      {"LF as the 255th byte", "\033T\r1\r" + std::string(249, '\r') + "\n", 255, 251,
       "1|" + std::string(250, '|'), "1" + std::string(5, '\r')},
      {"no LF in 255 bytes: no empty field at a CR there",
       "\033T\r1\r" + std::string(250, '\r') + "\n", 255, 252, "1|" + std::string(250, '|'),
       "1" + std::string(5, '\r')},
      {"no LF in 255 bytes", "\033T\r" + longName, 255, 1,
       [] {
         std::string fields;
         for (int left = 252; left > 0; left -= 7)
           fields += "nnnnnn|";
         return fields;
       }(),
       "nnnnnn"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    test::GuardedBytes bytes(row.bytes);
    stm::Block block{};
    const stm::Input input{bytes.data(), bytes.data() + bytes.size()};
    REQUIRE(stm::ScanBlock(input, stm::BlockEnd::Line, block) == (row.taken != 0));
    if (row.taken == 0) continue;
    CHECK(block.after == input.position + row.taken);
    CHECK(stm::CountCrs(block) == row.crCount);
    CHECK(stm::ReadRest(block, stm::FieldsOf(block), 7) == row.rest);
    std::string fields;
    for (stm::Fields left = stm::FieldsOf(block); !stm::AtEnd(left);)
      fields.append(stm::NextField(left, 7)).append("|");
    CHECK(fields == row.fields);
  }
}

TEST_CASE("nothing is read after a block's last field") {
  test::GuardedBytes bytes(std::string("\033V\rSYS\n"));
  stm::Block block{};
  const stm::Input input{bytes.data(), bytes.data() + bytes.size()};
  REQUIRE(stm::ScanBlock(input, stm::BlockEnd::Line, block));
  stm::Fields fields = stm::FieldsOf(block);
  CHECK(stm::NextField(fields, 7) == "SYS");
  CHECK(stm::NextField(fields, 7).empty());
  CHECK(stm::ReadRest(block, fields, 7).empty());
  CHECK(stm::AtEnd(fields));
}
