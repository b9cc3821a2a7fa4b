// The look-up of a name in its table: by an index, in place of a walk from the first row.
//
// A reply asks for twenty names and more, and is to be read into a record that held one before in
// less time than its floor takes, into a fresh record in at most 1.5 of it (docs/performance.md).
// With the index it is 0.5 and 1.5, with walks 0.7 and 1.75.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

#include "names/name_table.h"

namespace stm {

struct NameIndex {
  std::array<int32_t, 256> codeOfByte;  // of the name that is this one byte
  std::array<uint8_t, 256> firstRow;    // of the longer names with this slot
};

// The slot of a name of two bytes or more, from its length, its first byte and its last two. The
// factors were found by trial: with them each keyword of a reply has a slot of its own, so that the
// walk which begins at a slot's first row ends there.
constexpr uint8_t SlotOf(std::string_view name) {
  const auto byte = [name](size_t at) -> uint32_t { return static_cast<uint8_t>(name[at]); };
  const auto size = static_cast<uint32_t>(name.size());
  return static_cast<uint8_t>(9 * (byte(0) + byte(size - 1)) + 4 * (byte(size - 2) + size));
}

template <const auto& kTable>
inline constexpr NameIndex kNameIndex = [] {
  constexpr uint8_t kClosingRow = std::size(kTable) - 1;
  NameIndex index;
  index.codeOfByte.fill(kTable[kClosingRow].code);
  index.firstRow.fill(kClosingRow);
  for (uint8_t row = kClosingRow; row-- > 0;) {
    const std::string_view name = kTable[row].name;
    if (name.size() == 1) {
      index.codeOfByte[static_cast<uint8_t>(name[0])] = kTable[row].code;
    } else {
      index.firstRow[SlotOf(name)] = row;
    }
  }
  return index;
}();

// Byte for byte, but four at a time: to call memcmp takes longer than to compare a name.
inline bool SameName(std::string_view first, std::string_view second) {
  const char* a = first.data();
  const char* b = second.data();
  size_t left = first.size();
  if (left != second.size()) return false;
  for (; left >= 4; left -= 4, a += 4, b += 4) {
    if (std::memcmp(a, b, 4) != 0) return false;
  }
  for (; left > 0; --left) {
    if (*a++ != *b++) return false;
  }
  return true;
}

// The first row with the name, at `row` or after it; else the closing row.
inline const NameCode* FindName(std::string_view name, const NameCode* row) {
  while (row->name.data() && !SameName(row->name, name))
    ++row;
  return row;
}

// For a name that the table does not have as it stands: it may have what ends at the zero byte.
template <const auto& kTable>
[[gnu::cold]] int32_t CodeUpToZero(std::string_view name) {
  const size_t zero = name.find('\0');
  if (zero == name.npos) return std::end(kTable)[-1].code;
  return FindName(name.substr(0, zero), kTable)->code;
}

// The code of the first row with the name, else the closing row's. The name may be a piece of a
// longer text; a zero byte in it ends it.
template <const auto& kTable>
inline int32_t LookupNameCode(std::string_view name) {
  constexpr const NameIndex& kIndex = kNameIndex<kTable>;
  if (name.size() == 1) return kIndex.codeOfByte[static_cast<uint8_t>(name[0])];
  if (!name.empty()) {
    const NameCode* row = FindName(name, kTable + kIndex.firstRow[SlotOf(name)]);
    if (row->name.data()) return row->code;
  }
  return CodeUpToZero<kTable>(name);
}

}  // namespace stm
