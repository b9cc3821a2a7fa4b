#include "records/configuration_blocks.h"

#include <cstring>

#include "records/emulation_codes.h"
#include "records/font_names.h"
#include "records/item_list.h"

namespace stm {
namespace {

constexpr uint32_t kVersionLimit = 8;

void SkipLabel(Input& fields) {
  ReadField(fields, kVersionLimit, kCarriageReturn);
}

// An existing block has room for every version text and is written over. Result: whether more
// fields follow.
bool ReadVersion(Input& fields, char*& text) {
  const Field value = ReadField(fields, kVersionLimit, kCarriageReturn);
  if (!text) text = static_cast<char*>(GlobalAlloc(GPTR, kVersionBytes));
  if (text) {
    std::memcpy(text, value.text.data(), value.text.size());
    text[value.text.size()] = '\0';
  }
  return value.delimiter == kCarriageReturn || Left(fields) > 0;
}

}  // namespace

//   1B 'V' CR  S Y S CR 1 . 0 1 CR  N W C CR 2 . 0 0 LF
//              label    value       label    value       a third pair may follow
void ParseVersionBlock(const Input& block, PrnInfoEx* record) {
  Input fields = FieldsOf(block);
  SkipLabel(fields);
  ReadVersion(fields, record->versionText1);
  SkipLabel(fields);
  if (!ReadVersion(fields, record->versionText2)) return;
  SkipLabel(fields);
  ReadVersion(fields, record->versionText3);
}

//   1B 'M' CR  6 4 LF
void ParseNumberBlock(const Input& block, PrnInfoEx* record) {
  Input fields = FieldsOf(block);
  record->modelInfoNumber = ParseDecimal(ReadField(fields, 16, kLineFeed).text);
}

//   1B 'E' CR  N D L LF
void ParseEmulationBlock(const Input& block, PrnInfoEx* record) {
  Input fields = FieldsOf(block);
  const Field code = ReadField(fields, 5, kLineFeed);
  record->emulationCode = static_cast<uint32_t>(LookupNameCode(code.text, kEmulationCodeTable));
}

//   1B 'F' CR  G O T H I C CR K A I S H O LF
//
// Fonts that the table does not name are not kept.
void ParseFontBlock(const Input& block, PrnInfoEx* record) {
  record->fontList = FreeItemList(record->fontList);
  record->fontCount = 0;
  FontNode** link = &record->fontList;
  Input fields = FieldsOf(block);
  while (Peek(fields) != '\0') {
    const Field name = ReadField(fields, 128, kCarriageReturn);
    const int32_t code = LookupNameCode(name.text, kFontNameTable);
    if (code == 0) continue;
    *link = NewItem<FontNode>();
    if (!*link) continue;
    (*link)->fontCode = static_cast<uint16_t>(code);
    link = &(*link)->next;
    ++record->fontCount;
  }
}

}  // namespace stm
