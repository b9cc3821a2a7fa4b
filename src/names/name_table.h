// Name tables: rows of a name and its code. The last row closes the table: it has no name, and its
// code answers for every name that no other row has.
#pragma once

#include <cstdint>
#include <string_view>

namespace stm {

struct NameCode {
  std::string_view name;
  int32_t code;
};

}  // namespace stm
