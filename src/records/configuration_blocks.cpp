#include "records/configuration_blocks.h"

#include <algorithm>
#include <cstring>

#include "names/emulation_codes.h"
#include "names/font_names.h"
#include "names/name_index.h"
#include "records/item_list.h"
#include "records/record_text.h"

namespace stm {
namespace {

// How many bytes a field takes at most, its delimiter among them.
constexpr uint32_t kMostOfVersion = 7;
constexpr uint32_t kMostOfNumber = 15;
constexpr uint32_t kMostOfLanguage = 4;
constexpr uint32_t kMostOfFont = 127;

// Keeps a version text of six characters at most. A block that the record holds is written over.
void KeepVersion(std::string_view value, char*& text, Room* room) {
  if (!IsPresent(text)) text = static_cast<char*>(TakeBlock(room, kVersionBytes));
  if (!text) return;
  std::memcpy(text, value.data(), value.size());
  text[value.size()] = '\0';
}

}  // namespace

//   1B 'V' CR  S Y S CR 1 . 0 1 CR  N W C CR 2 . 0 0 LF
//              label    value       label    value
//
// A third pair may follow, whose value goes on to the block's end, CRs included.
void ParseVersionBlock(const Block& block, Filling to) {
  Fields fields = FieldsOf(block);
  NextField(fields, kMostOfVersion);
  KeepVersion(NextField(fields, kMostOfVersion), to.record->versionText1, to.room);
  NextField(fields, kMostOfVersion);
  KeepVersion(NextField(fields, kMostOfVersion), to.record->versionText2, to.room);
  if (AtEnd(fields)) return;
  NextField(fields, kMostOfVersion);
  KeepVersion(ReadRest(block, fields, kMostOfVersion), to.record->versionText3, to.room);
}

//   1B 'M' CR  6 4 LF
void ParseNumberBlock(const Block& block, Filling to) {
  Fields fields = FieldsOf(block);
  to.record->modelInfoNumber = ParseDecimal(NextField(fields, kMostOfNumber));
}

//   1B 'E' CR  N D L LF
void ParseEmulationBlock(const Block& block, Filling to) {
  Fields fields = FieldsOf(block);
  const std::string_view code = NextField(fields, kMostOfLanguage);
  to.record->emulationCode = static_cast<uint32_t>(LookupNameCode<kEmulationCodeTable>(code));
}

//   1B 'F' CR  G O T H I C CR K A I S H O LF
//
// Fonts that the table does not name are not kept.
void ParseFontBlock(const Block& block, Filling to) {
  to.record->fontCount = 0;
  ListWriter<FontNode> fonts = BeginList(to.record->fontList, to.room);
  Fields fields = FieldsOf(block);
  while (!AtEnd(fields)) {
    const int32_t code = LookupNameCode<kFontNameTable>(NextField(fields, kMostOfFont));
    if (code == 0) continue;
    FontNode* font = NextItem(fonts);
    if (!font) continue;
    font->fontCode = static_cast<uint16_t>(code);
    ++to.record->fontCount;
  }
  EndList(fonts);
}

}  // namespace stm
