#include "records/name_table.h"

namespace stm {
namespace {

bool IsName(const char* rowName, std::string_view name) {
  for (char byte : name) {
    if (*rowName != byte) return false;
    if (byte == '\0') return true;
    ++rowName;
  }
  return *rowName == '\0';
}

}  // namespace

int32_t LookupNameCode(const char* name, const NameCode* table) {
  if (!name || !table) return -1;
  return LookupNameCode(std::string_view(name), table);
}

int32_t LookupNameCode(std::string_view name, const NameCode* table) {
  while (table->name && !IsName(table->name, name))
    ++table;
  return table->code;
}

}  // namespace stm
