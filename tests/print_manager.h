// A print manager's record as its owner builds it: groups are absent until they are given, fields
// that nobody reads are poisoned, arrays of items end where readable memory ends.
#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "support.h"

namespace test {

inline const char* const kAbsentText = reinterpret_cast<const char*>(STM_ABSENT_POINTER);

struct PrintManager {
  PMPrnInfo record;
  PMStatusInfo status{STM_ABSENT, STM_ABSENT};
  PMModelInfo model{nullptr, nullptr, STM_ABSENT};

  PrintManager() {
    std::memset(&record, kPoison, sizeof record);
    record.statusInfo = nullptr;
    record.modelInfo = nullptr;
    for (const PMItemGroup* PMPrnInfo::*group :
         {&PMPrnInfo::inputTrayInfo, &PMPrnInfo::outputBinInfo, &PMPrnInfo::fontInfo,
          &PMPrnInfo::emulationInfo, &PMPrnInfo::optionInfo, &PMPrnInfo::statusListInfo})
      record.*group = nullptr;
  }

  void SetStatus(uint32_t bits, uint32_t net = STM_ABSENT) {
    status = {bits, net};
    record.statusInfo = &status;
  }

  void SetModel(const char* name, const char* version, uint32_t number) {
    model = {name, version, number};
    record.modelInfo = &model;
  }

  template <class Item>
  PMItemGroup& Add(const PMItemGroup* PMPrnInfo::*field, const std::vector<Item>& items,
                   uint32_t current = STM_ABSENT) {
    std::vector<const void*> pointers;
    for (const Item& item : items)
      pointers.push_back(Keep(&item, sizeof item).data());
    GuardedBytes& array = Keep(pointers.data(), pointers.size() * sizeof(void*));
    groups.push_back({static_cast<uint32_t>(items.size()),
                      reinterpret_cast<const void* const*>(array.data()), current});
    record.*field = &groups.back();
    return groups.back();
  }

  PMItemGroup& AddTrays(const std::vector<PMInputTray>& items, uint32_t current = STM_ABSENT) {
    return Add(&PMPrnInfo::inputTrayInfo, items, current);
  }
  PMItemGroup& AddBins(const std::vector<PMOutputBin>& items, uint32_t current = STM_ABSENT) {
    return Add(&PMPrnInfo::outputBinInfo, items, current);
  }
  PMItemGroup& AddEmulations(const std::vector<PMEmulation>& items, uint32_t current = STM_ABSENT) {
    return Add(&PMPrnInfo::emulationInfo, items, current);
  }
  PMItemGroup& AddFonts(const std::vector<PMFont>& items) {
    return Add(&PMPrnInfo::fontInfo, items);
  }
  PMItemGroup& AddOptions(const std::vector<uint32_t>& devices) {
    return Add(&PMPrnInfo::optionInfo, devices);
  }
  PMItemGroup& AddStatuses(const std::vector<uint32_t>& codes) {
    std::vector<PMStatusItem> items;
    for (const uint32_t code : codes)
      items.push_back({0xA5A5A5A5, code});
    return Add(&PMPrnInfo::statusListInfo, items);
  }

 private:
  GuardedBytes& Keep(const void* bytes, size_t size) {
    kept.push_back(
        std::make_unique<GuardedBytes>(std::string_view(static_cast<const char*>(bytes), size)));
    return *kept.back();
  }

  std::vector<std::unique_ptr<GuardedBytes>> kept;
  std::deque<PMItemGroup> groups;
};

inline PMInputTray Tray(const char* name, const char* paper = nullptr, uint32_t level = STM_ABSENT,
                        uint32_t width = STM_ABSENT, uint32_t length = STM_ABSENT) {
  return {name, level, 0xA5A5A5A5, paper, nullptr, width, length};
}

}  // namespace test
