// Name tables: rows of a name and its code, closed by a row without a name whose code answers for
// every name that no row holds.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

namespace stm {

// The last four bytes of a name in one word; of a shorter name all bytes and the length. Names of
// one length with the same key are equal up to four bytes, and nearly always beyond.
constexpr uint32_t NameKey(std::string_view name) {
  const auto byte = [](char value) -> uint32_t { return static_cast<uint8_t>(value); };
  const char* text = name.data();
  const size_t size = name.size();
  if (size > 3) {
    text += size - 4;
    return byte(text[0]) | byte(text[1]) << 8 | byte(text[2]) << 16 | byte(text[3]) << 24;
  }
  if (size == 0) return 0;
  return byte(text[0]) | byte(text[size / 2]) << 8 | byte(text[size - 1]) << 16 |
         static_cast<uint32_t>(size) << 24;
}

// A name with its length and key, by which a look-up passes the other rows at a glance.
struct TableName {
  constexpr TableName(const char* literal)
      : text(literal),
        length(literal ? std::char_traits<char>::length(literal) : 0),
        key(literal ? NameKey(literal) : 0) {}
  constexpr operator const char*() const { return text; }
  const char* text;
  uint32_t length;
  uint32_t key;
};

// Whether a row with the name's key has the name: its key stands for the last four bytes.
inline bool SameText(const TableName& row, std::string_view name) {
  if (row.length != name.size()) return false;
  for (size_t at = 0; at + 4 < name.size(); at += 4) {
    if (std::memcmp(row.text + at, name.data() + at, 4) != 0) return false;
  }
  return true;
}

struct NameCode {
  TableName name;
  int32_t code;
};

// The row with the name, byte for byte, at `row` or behind it, else the closing row.
inline const NameCode* FindName(std::string_view name, const NameCode* row) {
  const uint32_t key = NameKey(name);
  while (row->name.key != key || !SameText(row->name, name)) {
    if (!row->name.text) break;
    ++row;
  }
  return row;
}

// Where the search in a table begins: the first row with a name's key, by a hash that keeps the
// keys of the table apart. For any other key the search from there ends at the closing row.
struct NameIndex {
  constexpr uint8_t SlotOf(uint32_t key) const {
    return static_cast<uint8_t>(key * multiplier >> 24);
  }
  uint32_t multiplier;
  std::array<uint8_t, 256> firstRow;
};

template <const auto& kTable>
inline constexpr NameIndex kNameIndex = [] {
  constexpr uint8_t kLast = std::size(kTable) - 1;
  for (uint32_t multiplier = 0x9E3779B1u;; multiplier += 0x3C6EF362u) {
    NameIndex index{multiplier, {}};
    index.firstRow.fill(kLast);
    bool apart = true;
    for (uint8_t row = kLast; row-- > 0;) {
      uint8_t& first = index.firstRow[index.SlotOf(kTable[row].name.key)];
      apart = apart && (first == kLast || kTable[first].name.key == kTable[row].name.key);
      first = row;
    }
    if (apart) return index;
  }
}();

// The codes of names of one byte, which most keywords of a reply are.
template <const auto& kTable>
inline constexpr auto kCodeOfByte = [] {
  std::array<int32_t, 256> codes;
  constexpr size_t kLast = std::size(kTable) - 1;
  codes.fill(kTable[kLast].code);
  for (size_t row = kLast; row-- > 0;) {
    const TableName& name = kTable[row].name;
    if (name.length == 1) codes[static_cast<uint8_t>(*name.text)] = kTable[row].code;
  }
  return codes;
}();

// The code for a name that the table does not have as it stands: the table may have what ends at
// its zero byte.
template <const auto& kTable>
[[gnu::noinline]] int32_t CodeUpToZero(std::string_view name) {
  const size_t zero = name.find('\0');
  if (zero == name.npos) return std::end(kTable)[-1].code;
  return FindName(name.substr(0, zero), kTable)->code;
}

// The code of the first row with the name, else the closing row's. `name` is a piece of a longer
// text; a zero byte in it ends the name. Always inline: half of the work would be the call.
template <const auto& kTable>
[[gnu::always_inline]] inline int32_t LookupNameCode(std::string_view name) {
  if (name.size() == 1) return kCodeOfByte<kTable>[static_cast<uint8_t>(name[0])];
  constexpr const NameIndex& kIndex = kNameIndex<kTable>;
  const NameCode* row = FindName(name, kTable + kIndex.firstRow[kIndex.SlotOf(NameKey(name))]);
  return row->name.text ? row->code : CodeUpToZero<kTable>(name);
}

// The same for a text of its own; -1 when `name` or `table` is null.
inline int32_t LookupNameCode(const char* name, const NameCode* table) {
  if (!name || !table) return -1;
  return FindName(name, table)->code;
}

}  // namespace stm
