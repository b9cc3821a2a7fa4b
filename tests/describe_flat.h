// What a call changed in a flat record, as text: "trayCount=2 trayList[3 8 4 4] online=1".
#pragma once

#include <cstddef>
#include <cstring>
#include <string>

#include "stmdata/records.h"

namespace test {

enum class FlatKind { Byte, Words, Text };

struct FlatField {
  const char* name;
  size_t offset;
  size_t size;
  FlatKind kind;
};

#define STM_FLAT(kind, name) \
  { #name, offsetof(PrnInfo, name), sizeof(PrnInfo::name), FlatKind::kind }
inline constexpr FlatField kFlatFields[] = {
    STM_FLAT(Words, statusCode),      STM_FLAT(Words, offline),
    STM_FLAT(Words, currentTray),     STM_FLAT(Words, hasDuplex),
    STM_FLAT(Words, modelInfoNumber), STM_FLAT(Text, versionText1),
    STM_FLAT(Text, versionText2),     STM_FLAT(Text, versionText3),
    STM_FLAT(Words, emulationCode),   STM_FLAT(Words, emulationList),
    STM_FLAT(Words, emulationCount),  STM_FLAT(Words, fontList),
    STM_FLAT(Words, fontCount),       STM_FLAT(Words, trayList),
    STM_FLAT(Words, trayCount),       STM_FLAT(Text, modelName),
    STM_FLAT(Text, manufacturer),     STM_FLAT(Text, description),
    STM_FLAT(Byte, modelCode),        STM_FLAT(Byte, online),
    STM_FLAT(Byte, hasError),         STM_FLAT(Byte, printing),
    STM_FLAT(Words, structSize),      STM_FLAT(Words, option4Present),
    STM_FLAT(Words, option5Present),  STM_FLAT(Words, option6Present),
    STM_FLAT(Words, reserved1),       STM_FLAT(Words, trayLevelList),
    STM_FLAT(Words, trayLevelCount),  STM_FLAT(Words, binList),
    STM_FLAT(Words, binCount),        STM_FLAT(Words, duplexFlag),
    STM_FLAT(Words, option2Flag),     STM_FLAT(Words, option3Flag),
    STM_FLAT(Words, option4Flag),     STM_FLAT(Words, optionBits1),
    STM_FLAT(Words, optionBits2),     STM_FLAT(Words, finisherBits),
    STM_FLAT(Words, currentBin),      STM_FLAT(Words, statusList),
    STM_FLAT(Words, statusCount),     STM_FLAT(Words, reserved2),
    STM_FLAT(Words, noResponse),      STM_FLAT(Words, reserved3),
};
#undef STM_FLAT

// The fields whose bytes differ, in the record's order. Arrays are shown up to the last word that
// differs, words before it that do not differ as '*'; text up to its end, with '+' when bytes after
// it differ as well.
inline std::string Changes(const PrnInfo& before, const PrnInfo& after) {
  std::string out;
  for (const FlatField& field : kFlatFields) {
    const char* was = reinterpret_cast<const char*>(&before) + field.offset;
    const char* is = reinterpret_cast<const char*>(&after) + field.offset;
    size_t changed = field.size;  // bytes up to the last that differs
    while (changed > 0 && was[changed - 1] == is[changed - 1])
      --changed;
    if (changed == 0) continue;
    if (!out.empty()) out += ' ';
    out += field.name;
    if (field.kind == FlatKind::Byte) {
      out += '=' + std::to_string(static_cast<uint8_t>(*is));
    } else if (field.kind == FlatKind::Text) {
      const size_t length = strnlen(is, field.size);
      out += "='" + std::string(is, length) + '\'';
      if (length == field.size || changed > length + 1) out += '+';
    } else {
      std::string words;
      for (size_t at = 0; at < changed; at += 4) {
        uint32_t word;
        std::memcpy(&word, is + at, 4);
        if (at > 0) words += ' ';
        words += std::memcmp(was + at, is + at, 4) == 0 ? "*" : std::to_string(word);
      }
      out += field.size == 4 ? '=' + words : '[' + words + ']';
    }
  }
  return out;
}

inline PrnInfo PoisonedPrnInfo() {
  PrnInfo info;
  std::memset(&info, 0xA5, sizeof info);
  return info;
}

}  // namespace test
