#include "records/configuration_blocks.h"

#include <cstring>

#include "records/emulation_codes.h"
#include "records/font_names.h"
#include "records/item_list.h"

namespace stm {
namespace {

constexpr uint16_t kVersionLimit = 8;
constexpr uint32_t kVersionBytes = 7;  // six characters and the zero byte

// An existing block has room for every version text and is written over.
void ReadVersion(Input& fields, char*& text) {
  const auto value = ReadField<kVersionLimit>(fields, kCarriageReturn, kLineFeed);
  if (!text) text = static_cast<char*>(GlobalAlloc(GPTR, kVersionBytes));
  if (text) std::strcpy(text, value.text);
}

void SkipLabel(Input& fields) {
  ReadField<kVersionLimit>(fields, kCarriageReturn);
}

}  // namespace

//   1B 'V' CR  S Y S CR 1 . 0 1 CR  N W C CR 2 . 0 0 LF
//              label    value       label    value       a third pair may follow
uint16_t ParseVersionBlock(const Input& block, PrnInfoEx* record) {
  const BlockCopy copy = CopyBlock(block);
  Input fields = FieldsOf(copy);
  SkipLabel(fields);
  ReadVersion(fields, record->versionText1);
  SkipLabel(fields);
  ReadVersion(fields, record->versionText2);
  if (Peek(fields) != '\0') {
    SkipLabel(fields);
    ReadVersion(fields, record->versionText3);
  }
  return static_cast<uint16_t>(copy.length);
}

//   1B 'M' CR  6 4 LF
uint16_t ParseNumberBlock(const Input& block, PrnInfoEx* record) {
  const BlockCopy copy = CopyBlock(block);
  Input fields = FieldsOf(copy);
  record->modelInfoNumber = ParseDecimal(ReadField<16>(fields, kLineFeed).text);
  return static_cast<uint16_t>(copy.length);
}

//   1B 'E' CR  N D L LF
uint16_t ParseEmulationBlock(const Input& block, PrnInfoEx* record) {
  const BlockCopy copy = CopyBlock(block);
  Input fields = FieldsOf(copy);
  const auto code = ReadField<5>(fields, kLineFeed);
  record->emulationCode = static_cast<uint32_t>(LookupNameCode(code.text, kEmulationCodeTable));
  return static_cast<uint16_t>(copy.length);
}

//   1B 'F' CR  G O T H I C CR K A I S H O LF
//
// Fonts that the table does not name are not kept.
uint16_t ParseFontBlock(const Input& block, PrnInfoEx* record) {
  const BlockCopy copy = CopyBlock(block);
  record->fontList = FreeItemList(record->fontList);
  record->fontCount = 0;
  FontNode** link = &record->fontList;
  Input fields = FieldsOf(copy);
  while (Peek(fields) != '\0') {
    const auto name = ReadField<128>(fields, kCarriageReturn, kLineFeed);
    const int32_t code = LookupNameCode(name.text, kFontNameTable);
    if (code == 0) continue;
    *link = NewItem<FontNode>();
    if (!*link) continue;
    (*link)->fontCode = static_cast<uint16_t>(code);
    link = &(*link)->next;
    ++record->fontCount;
  }
  return static_cast<uint16_t>(copy.length);
}

}  // namespace stm
