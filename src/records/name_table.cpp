#include "records/name_table.h"

#include <cstring>

namespace stm {

int32_t LookupNameCode(const char* name, const NameCode* table) {
  if (!name || !table) return -1;
  while (table->name && std::strcmp(table->name, name) != 0)
    ++table;
  return table->code;
}

}  // namespace stm
