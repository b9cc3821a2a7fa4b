// Name tables: rows of a name and its code, closed by a row without a name whose code answers for
// every name that no row holds.
#pragma once

#include <cstdint>
#include <string_view>

namespace stm {

// A name with its length and last byte, by which a look-up passes most rows at a glance.
struct TableName {
  constexpr TableName(const char* literal)
      : text(literal),
        length(literal ? static_cast<uint16_t>(std::char_traits<char>::length(literal)) : 0),
        last(length ? literal[length - 1] : '\0') {}
  constexpr operator const char*() const { return text; }
  const char* text;
  uint16_t length;
  char last;
};

struct NameCode {
  TableName name;
  int32_t code;
};

// The code of the first row whose name equals `name` byte for byte, else the closing row's; -1 when
// `name` or `table` is null.
int32_t LookupNameCode(const char* name, const NameCode* table);

// The same for a piece of a longer text; a zero byte in it ends the name.
int32_t LookupNameCode(std::string_view name, const NameCode* table);

}  // namespace stm
