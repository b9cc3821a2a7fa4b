#include "snapshot/ranking.h"

#include <algorithm>

#include "stmdata/stmdata.h"

namespace stmon {
namespace {

// A record that lists these codes and nothing else.
struct Probe {
  explicit Probe(const std::vector<uint32_t>& codes) : nodes(codes.size()) {
    record.recordTag = PrnInfoExTag;
    record.structSize = PrnInfoExSize;
    record.statusCount = static_cast<uint32_t>(codes.size());
    for (size_t i = 0; i < codes.size(); ++i) {
      nodes[i].nodeSize = sizeof(StatusNode);
      nodes[i].code = static_cast<uint16_t>(codes[i]);
      nodes[i].next = i + 1 < codes.size() ? &nodes[i + 1] : nullptr;
    }
    record.statusList = codes.empty() ? nullptr : nodes.data();
  }
  Probe(const Probe&) = delete;
  Probe& operator=(const Probe&) = delete;

  PrnInfoEx record{};
  std::vector<StatusNode> nodes;
};

// The library's comparison of records looks at the deciding statuses only, so a code decides when
// leaving it out makes a difference.
bool Decides(const std::vector<uint32_t>& codes, uint32_t code) {
  std::vector<uint32_t> others = codes;
  std::erase(others, code);
  const Probe all(codes);
  const Probe rest(others);
  uint32_t equal = 1;
  PatCmpPrnInfoEX(&all.record, &rest.record, GroupStatusList, &equal);
  return equal == 0;
}

}  // namespace

std::vector<std::vector<uint32_t>> RankCodes(std::vector<uint32_t> codes) {
  std::vector<std::vector<uint32_t>> groups;
  while (!codes.empty()) {
    std::vector<uint32_t> group;
    for (const uint32_t code : codes) {
      if (Decides(codes, code)) group.push_back(code);
    }
    if (group.empty()) break;
    for (const uint32_t code : group)
      std::erase(codes, code);
    std::sort(group.begin(), group.end());
    groups.push_back(std::move(group));
  }
  return groups;
}

}  // namespace stmon
