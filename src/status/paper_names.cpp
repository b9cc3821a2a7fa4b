// Names and pictures of paper codes, names of trays. The record kind makes no difference here; both
// twins ask the same tables and neither looks at its record.
#include <cstring>

#include "status/last_error.h"
#include "status/paper_table.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// An unknown code is told by the result alone; the error value says that nothing went wrong.
uint32_t AnswerNone() {
  return FailWith(PatErrorNone);
}

template <class Row>
const Row* FindRow(const Row* row, uint32_t code) {
  while (row->code != -1 && static_cast<uint32_t>(row->code) != code)
    ++row;
  return row->code == -1 ? nullptr : row;
}

const char* PictureOf(const PaperRow& row) {
  switch (row.kind) {
    case kNormal:
      return "BMP_PAPER_NORMAL";
    case kRotated:
      return "BMP_PAPER_R";
    default:
      return nullptr;
  }
}

// Empties the buffer, then copies `text`; a null text is no answer.
uint32_t Answer(const char* text, char* buffer) {
  if (!buffer) return FailWith(PatErrorNullRecord);
  buffer[0] = '\0';
  if (!text) return AnswerNone();
  std::memcpy(buffer, text, std::strlen(text) + 1);
  return 1;
}

uint32_t PaperName(uint32_t code, char* buffer) {
  const PaperRow* row = FindRow(kPaperTable, code);
  return Answer(row ? row->name : nullptr, buffer);
}

uint32_t PaperBitmap(uint32_t code, char* buffer) {
  const PaperRow* row = FindRow(kPaperTable, code);
  return Answer(row ? PictureOf(*row) : nullptr, buffer);
}

uint32_t TrayName(uint32_t code, char* buffer) {
  const TrayRow* row = FindRow(kTrayTable, code);
  return Answer(row ? row->name : nullptr, buffer);
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatGetPaperName(const PrnInfo*, uint32_t paperCode, char* buffer) {
  return stm::PaperName(paperCode, buffer);
}

uint32_t STM_CALL PatGetPaperName_Ex(const PrnInfoEx*, uint32_t paperCode, char* buffer) {
  return stm::PaperName(paperCode, buffer);
}

uint32_t STM_CALL PatGetPaperBitmap(const PrnInfo*, uint32_t paperCode, char* buffer) {
  return stm::PaperBitmap(paperCode, buffer);
}

uint32_t STM_CALL PatGetPaperBitmap_Ex(const PrnInfoEx*, uint32_t paperCode, char* buffer) {
  return stm::PaperBitmap(paperCode, buffer);
}

uint32_t STM_CALL PatGetTrayName(const PrnInfo*, uint32_t trayCode, char* buffer) {
  return stm::TrayName(trayCode, buffer);
}

uint32_t STM_CALL PatGetTrayName_Ex(const PrnInfoEx*, uint32_t trayCode, char* buffer) {
  return stm::TrayName(trayCode, buffer);
}

uint32_t STM_CALL PatGetTrayRect(uint32_t, uint32_t, uint32_t) {
  return 0;
}

uint32_t STM_CALL PatGetTrayRect_Ex(uint32_t, uint32_t, uint32_t) {
  return 0;
}
