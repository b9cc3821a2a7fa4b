// Name tables: rows of a name and its code, closed by a row without a name whose code answers for
// every name that no row holds.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace stm {

// The last four bytes of a name in one word. Names of the same length, and of up to four bytes, are
// equal when their keys are; longer ones with the same key seldom are not.
constexpr uint32_t NameKey(std::string_view name) {
  uint32_t key = 0;
  for (size_t at = name.size() > 4 ? name.size() - 4 : 0; at < name.size(); ++at)
    key = key << 8 | static_cast<uint8_t>(name[at]);
  return key;
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

// Whether a row with the name's key has the name.
inline bool SameText(const TableName& row, std::string_view name) {
  return row.length == name.size() &&
         (row.length <= 4 || std::memcmp(row.text, name.data(), row.length) == 0);
}

struct NameCode {
  TableName name;
  int32_t code;
};

// The row with the name, byte for byte, else the closing row.
inline const NameCode* FindName(std::string_view name, const NameCode* table) {
  const uint32_t key = NameKey(name);
  while (table->name.text && (table->name.key != key || !SameText(table->name, name)))
    ++table;
  return table;
}

// The code of the first row with the name, else the closing row's. `name` is a piece of a longer
// text; a zero byte in it ends the name.
inline int32_t LookupNameCode(std::string_view name, const NameCode* table) {
  const NameCode* row = FindName(name, table);
  if (!row->name.text && name.find('\0') != name.npos)
    row = FindName(name.substr(0, name.find('\0')), table);
  return row->code;
}

// The same for a text of its own; -1 when `name` or `table` is null.
inline int32_t LookupNameCode(const char* name, const NameCode* table) {
  if (!name || !table) return -1;
  return FindName(name, table)->code;
}

}  // namespace stm
