// Name tables: rows of a name and its code, closed by a row without a name whose code answers for
// every name that no row holds.
#pragma once

#include <cstdint>
#include <string_view>

namespace stm {

struct NameCode {
  const char* name;
  int32_t code;
};

// The code of the first row whose name equals `name` byte for byte, else the closing row's; -1 when
// `name` or `table` is null.
int32_t LookupNameCode(const char* name, const NameCode* table);

// The same for a piece of a longer text; a zero byte in it ends the name.
int32_t LookupNameCode(std::string_view name, const NameCode* table);

}  // namespace stm
