// A flat and a list-based record that say the same, for questions that come in twins.
#pragma once

#include <cstdint>
#include <vector>

#include "support.h"

namespace test {

struct TraySaid {
  uint32_t id;
  uint32_t paperCode;
  uint32_t level = 50;
};

struct Said {
  std::vector<uint32_t> statuses = {};
  bool online = true;
  bool hasError = false;
  bool printing = false;
  bool noResponse = false;
  std::vector<TraySaid> trays = {};
  bool duplex = false;
};

template <class Node>
Node* Prepend(Node* head) {
  auto* node = static_cast<Node*>(GlobalAlloc(GPTR, sizeof(Node)));
  node->nodeSize = sizeof(Node);
  node->next = head;
  return node;
}

struct BothRecords {
  PrnInfo flat{};
  Record list;

  explicit BothRecords(const Said& said) {
    flat.online = list.online = said.online;
    flat.hasError = list.hasError = said.hasError;
    flat.printing = list.printing = said.printing;
    list.noResponse = said.noResponse;
    flat.noResponse = said.noResponse;
    uint32_t sum = 0;
    for (uint32_t code : said.statuses) {
      if (flat.statusCount < 32) flat.statusList[flat.statusCount] = code;
      ++flat.statusCount;
      sum += code;
    }
    if (said.statuses.size() == 1) flat.statusCode = said.statuses[0];
    if (said.statuses.size() > 1) flat.statusCode = sum << 16 | StatusSeveralMarker;
    for (const TraySaid& tray : said.trays) {
      flat.trayList[flat.trayCount++] = {tray.id, tray.paperCode};
      flat.trayLevelList[flat.trayLevelCount++] = {tray.id, tray.level};
    }

    for (auto code = said.statuses.rbegin(); code != said.statuses.rend(); ++code) {
      list.statusList = Prepend(list.statusList);
      list.statusList->code = static_cast<uint16_t>(*code);
    }
    list.statusCount = static_cast<uint32_t>(said.statuses.size());
    for (auto tray = said.trays.rbegin(); tray != said.trays.rend(); ++tray) {
      list.trayList = Prepend(list.trayList);
      list.trayList->trayId = static_cast<uint16_t>(tray->id);
      list.trayList->paperCode = static_cast<uint16_t>(tray->paperCode);
      list.trayList->paperLevel = static_cast<uint16_t>(tray->level);
    }
    list.trayCount = static_cast<uint32_t>(said.trays.size());
    if (said.duplex) {
      list.optionList = Prepend(list.optionList);
      list.optionList->optionCode = OptionDuplex;
      list.optionCount = 1;
    }
  }
};

}  // namespace test
