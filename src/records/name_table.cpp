#include "records/name_table.h"

#include <cstring>

namespace stm {

int32_t LookupNameCode(const char* name, const NameCode* table) {
  if (!name || !table) return -1;
  return LookupNameCode(std::string_view(name), table);
}

int32_t LookupNameCode(std::string_view name, const NameCode* table) {
  const char* text = name.data();
  uint32_t length = 0;
  while (length < name.size() && text[length] != '\0')
    ++length;
  const char last = length ? text[length - 1] : '\0';
  for (; table->name.text; ++table) {
    const TableName& row = table->name;
    if (row.last == last && row.length == length && std::memcmp(row.text, text, length) == 0) break;
  }
  return table->code;
}

}  // namespace stm
