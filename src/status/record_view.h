// What the two record kinds have in common, as small plain views: the status questions are asked of
// these, and where the kinds differ shows in how a view is filled.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "records/item_list.h"
#include "stmdata/records.h"

namespace stm {

// Codes up to this one are ready, near-end, maintenance and waiting states: an offline printer is
// said to be offline, a printing one to print.
inline constexpr uint32_t kLastMildCode = 23;

// What a record lists: the entries of a flat record's array, or the nodes of a list-based record's
// chain; as many as the record's count says, but none past the array's or the chain's end.
template <class Entry, class Node>
struct Listed {
  std::span<const Entry> entries;
  Items<const Node> nodes{nullptr};
};

template <class Entry, size_t Capacity>
std::span<const Entry> CountedEntries(const Entry (&array)[Capacity], uint32_t count) {
  return {array, std::min<size_t>(count, Capacity)};
}

// What a node says, as an entry.
inline void Read(const StatusNode& node, uint32_t* code) {
  *code = node.code;
}
inline void Read(const TrayNode& node, TrayPaper* tray) {
  *tray = {node.trayId, node.paperCode};
}
inline void Read(const TrayNode& node, TrayLevel* tray) {
  *tray = {node.trayId, node.paperLevel};
}

// Takes the next entry; false at the end.
template <class Entry, class Node>
bool TakeNext(Listed<Entry, Node>* listed, Entry* entry) {
  if (!listed->entries.empty()) {
    *entry = listed->entries.front();
    listed->entries = listed->entries.subspan(1);
    return true;
  }
  if (listed->nodes.AtEnd()) return false;
  Read(*listed->nodes, entry);
  ++listed->nodes;
  return true;
}

struct StatusView {
  Listed<uint32_t, StatusNode> codes;
  bool printing;
  bool noResponse;
};

inline StatusView ViewStatus(const PrnInfo& info) {
  return {{CountedEntries(info.statusList, info.statusCount)},
          info.printing != 0,
          info.noResponse != 0};
}
inline StatusView ViewStatus(const PrnInfoEx& info) {
  return {{{}, Items<const StatusNode>(info.statusList, info.statusCount)},
          info.printing != 0,
          info.noResponse != 0};
}

// Whether the flat record's one code stands for a list.
inline bool HasSeveralStatuses(const PrnInfo& info) {
  return (info.statusCode & 0xFF) == StatusSeveralMarker && info.statusCount != 0;
}

// The trays of a record with their paper.
using TrayView = Listed<TrayPaper, TrayNode>;

inline TrayView ViewTrays(const PrnInfo& info) {
  return {CountedEntries(info.trayList, info.trayCount)};
}
inline TrayView ViewTrays(const PrnInfoEx& info) {
  return {{}, Items<const TrayNode>(info.trayList, info.trayCount)};
}

// The paper levels of a record.
using LevelView = Listed<TrayLevel, TrayNode>;

inline LevelView ViewLevels(const PrnInfo& info) {
  return {CountedEntries(info.trayLevelList, info.trayLevelCount)};
}
inline LevelView ViewLevels(const PrnInfoEx& info) {
  return {{}, Items<const TrayNode>(info.trayList, info.trayCount)};
}

}  // namespace stm
