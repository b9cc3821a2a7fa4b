// Names and pictures of paper codes, names of trays. The record kind makes no difference here; both
// twins ask the same tables and neither looks at its record.
#include <cstring>

#include "records/row_index.h"
#include "status/last_error.h"
#include "status/paper_table.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// Empties the buffer, then copies `text`. No text is no answer, which the result alone tells: the
// error value says that nothing went wrong.
uint32_t Answer(const char* text, char* buffer) {
  if (!buffer) return FailWith(PatErrorNullRecord);
  buffer[0] = '\0';
  if (!text) return FailWith(PatErrorNone);
  std::memcpy(buffer, text, std::strlen(text) + 1);
  return 1;
}

uint32_t PaperName(uint32_t code, char* buffer) {
  return Answer(RowOf<kPaperTable, &PaperRow::code>(code).name, buffer);
}

uint32_t PaperBitmap(uint32_t code, char* buffer) {
  return Answer(kPaperPictures[RowOf<kPaperTable, &PaperRow::code>(code).kind], buffer);
}

uint32_t TrayName(uint32_t code, char* buffer) {
  return Answer(RowOf<kTrayTable, &TrayRow::code>(code).name, buffer);
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
