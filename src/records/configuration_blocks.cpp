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

// Reads a text that ends with `delimiter` or with the block. An existing block has room for every
// version text and is written over.
void ReadVersion(Input& fields, char delimiter, char*& text, Room* room) {
  const Field value = ReadField(fields, kVersionLimit, delimiter, kLineFeed);
  if (!text) text = static_cast<char*>(TakeBlock(room, kVersionBytes));
  if (text) {
    std::memcpy(text, value.text.data(), value.text.size());
    text[value.text.size()] = '\0';
  }
}

}  // namespace

//   1B 'V' CR  S Y S CR 1 . 0 1 CR  N W C CR 2 . 0 0 LF
//              label    value       label    value       a third pair may follow
void ParseVersionBlock(const Input& block, Filling to) {
  Input fields = FieldsOf(block);
  SkipLabel(fields);
  ReadVersion(fields, kCarriageReturn, to.record->versionText1, to.room);
  SkipLabel(fields);
  ReadVersion(fields, kCarriageReturn, to.record->versionText2, to.room);
  if (Peek(fields) == '\0') return;
  SkipLabel(fields);
  ReadVersion(fields, kLineFeed, to.record->versionText3, to.room);
}

//   1B 'M' CR  6 4 LF
void ParseNumberBlock(const Input& block, Filling to) {
  Input fields = FieldsOf(block);
  to.record->modelInfoNumber = ParseDecimal(ReadField(fields, 16, kLineFeed).text);
}

//   1B 'E' CR  N D L LF
void ParseEmulationBlock(const Input& block, Filling to) {
  Input fields = FieldsOf(block);
  const Field code = ReadField(fields, 5, kLineFeed);
  to.record->emulationCode = static_cast<uint32_t>(LookupNameCode(code.text, kEmulationCodeTable));
}

//   1B 'F' CR  G O T H I C CR K A I S H O LF
//
// Fonts that the table does not name are not kept.
void ParseFontBlock(const Input& block, Filling to) {
  to.record->fontCount = 0;
  FontNode** link = &to.record->fontList;
  Input fields = FieldsOf(block);
  while (Peek(fields) != '\0') {
    const Field name = ReadField(fields, 128, kCarriageReturn, kLineFeed);
    const int32_t code = LookupNameCode(name.text, kFontNameTable);
    if (code == 0) continue;
    FontNode* font = NextItem(link, to.room);
    if (!font) continue;
    font->fontCode = static_cast<uint16_t>(code);
    ++to.record->fontCount;
  }
  *link = FreeItemList(*link, to.room);
}

}  // namespace stm
