#include "doctest/doctest.h"
#include "support.h"

namespace {

template <class Question, class TwinQuestion>
std::string Ask(Question question, TwinQuestion twin, uint32_t code, uint32_t size,
                uint32_t result) {
  std::string answers[2];
  for (int kind = 0; kind < 2; ++kind) {
    StatusRow row;
    PatGetPrinterStatus(nullptr, &row);
    test::GuardedBytes buffer(std::string(size, 'x'));
    CHECK((kind ? twin(nullptr, code, buffer.data()) : question(nullptr, code, buffer.data())) ==
          result);
    CHECK(PatGetError() == (result ? PatErrorNullRecord : PatErrorNone));
    answers[kind] = buffer.data();
  }
  CHECK(answers[0] == answers[1]);
  return answers[0];
}

}  // namespace

TEST_CASE("paper sizes have a name and a picture of their orientation") {
  const struct {
    uint32_t code;
    bool known;
    std::string name, picture;
  } rows[] = {
      {0, true, "***", ""},
      {1, true, "", ""},
      {2, true, "\xCC\xD8\xB0\xBB\xB2\xBD\xDE", ""},
      {8, true, "A4", "BMP_PAPER_NORMAL"},
      {9, true, "A4", "BMP_PAPER_R"},
      {19, true, "DLT", "BMP_PAPER_R"},
      {24, true, "***", "BMP_PAPER_NORMAL"},
      {27, true, "HLT", "BMP_PAPER_R"},
      {28, true, "***", "BMP_PAPER_R"},
      {29, true, "***", ""},
      {34, true, "\xCA\xB6\xDE\xB7", "BMP_PAPER_R"},
      {41, true, " ", ""},
      {42, false, "", ""},
      {0xFFFFFFFF, false, "", ""},
      {0x10008, false, "", ""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.code);
    CHECK(Ask(PatGetPaperName, PatGetPaperName_Ex, row.code, 8, row.known) == row.name);
    CHECK(Ask(PatGetPaperBitmap, PatGetPaperBitmap_Ex, row.code, 17, !row.picture.empty()) ==
          row.picture);
  }
}

TEST_CASE("trays have a name") {
  const struct {
    uint32_t code;
    std::string name;
  } rows[] = {
      {1, "\x8E\xE8\x8D\xB7\x82\xB5\xC4\xDA\xB2"},
      {3, "\xC4\xDA\xB2\x31"},
      {6, "\xC4\xDA\xB2\x34"},
      {7, "\x91\xE5\x97\xCA\x8B\x8B\x8E\x86\xC4\xDA\xB2"},
      {0, ""},
      {2, ""},
      {8, ""},
      {0xFFFFFFFF, ""},
  };
  for (const auto& row : rows) {
    CAPTURE(row.code);
    CHECK(Ask(PatGetTrayName, PatGetTrayName_Ex, row.code, 12, !row.name.empty()) == row.name);
  }
  CHECK(PatGetTrayRect(1, 2, 3) == 0);
  CHECK(PatGetTrayRect_Ex(1, 2, 3) == 0);
}
