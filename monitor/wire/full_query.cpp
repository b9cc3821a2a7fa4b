#include "wire/full_query.h"

#include "stmdata/stmdata.h"

namespace stmon {

std::string BuildQuery() {
  constexpr uint32_t kGroups = GroupStatus | GroupStatusList | GroupModelInfo | GroupTrays |
                               GroupBins | GroupDuplex | GroupOptions | GroupEmulation | GroupFonts;
  uint32_t size = 0;
  CreateQueryCommand(kGroups, nullptr, &size);  // tells the size without the zero byte
  std::string query(size + 1, '\0');
  ++size;
  if (CreateQueryCommand(kGroups, query.data(), &size) != 1) size = 0;
  query.resize(size);
  return query;
}

}  // namespace stmon
