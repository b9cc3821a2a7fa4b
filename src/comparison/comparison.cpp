// Whether two list-based records agree, group by group.
#include <algorithm>
#include <cstring>

#include "platform/system_error.h"
#include "records/item_list.h"
#include "records/presence.h"
#include "status/dominant_status.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// A number that either record lacks agrees with every other.
bool AgreeWhereKnown(uint32_t first, uint32_t second) {
  return !IsPresent(first) || !IsPresent(second) || first == second;
}

bool AgreeWhereHeld(const char* first, const char* second) {
  return !IsPresent(first) || !IsPresent(second) || std::strcmp(first, second) == 0;
}

// Two missing texts agree, a missing one and a text differ.
bool AgreeText(const char* first, const char* second) {
  if (!IsPresent(first) || !IsPresent(second)) return IsPresent(first) == IsPresent(second);
  return std::strcmp(first, second) == 0;
}

// Walks two lists in step for `count` nodes. A chain that ends earlier than its count is as long as
// it is: two agree when both end at the same node.
template <class Node, class Agree>
bool AgreeItems(const Node* first, const Node* second, uint32_t count, Agree agree) {
  Items a(first, count);
  Items b(second, count);
  for (; !a.AtEnd() && !b.AtEnd(); ++a, ++b) {
    if (!agree(*a, *b)) return false;
  }
  return a.AtEnd() && b.AtEnd();
}

// Only what the user would be told: less urgent statuses do not count.
bool StatusesAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  const DominantStatuses one = GetDominantStatuses(first);
  const DominantStatuses other = GetDominantStatuses(second);
  return std::equal(one.codes, one.codes + one.count, other.codes, other.codes + other.count);
}

bool StatesAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  return first.offline == second.offline && first.modelCode == second.modelCode &&
         first.online == second.online && first.hasError == second.hasError &&
         first.printing == second.printing && first.noResponse == second.noResponse;
}

bool TraysAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  const auto agree = [](const TrayNode& a, const TrayNode& b) {
    return a.trayId == b.trayId && a.paperCode == b.paperCode && a.paperLevel == b.paperLevel;
  };
  return AgreeWhereKnown(first.currentTray, second.currentTray) &&
         first.trayCount == second.trayCount &&
         AgreeItems(first.trayList, second.trayList, first.trayCount, agree);
}

bool BinsAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  const auto agree = [](const BinNode& a, const BinNode& b) {
    return a.binId == b.binId && a.binState == b.binState;
  };
  return AgreeWhereKnown(first.currentBin, second.currentBin) &&
         first.binCount == second.binCount &&
         AgreeItems(first.binList, second.binList, first.binCount, agree);
}

bool EmulationsAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  const auto agree = [](const EmulationNode& a, const EmulationNode& b) {
    return a.emulationCode == b.emulationCode;
  };
  return AgreeWhereKnown(first.emulationCode, second.emulationCode) &&
         first.emulationCount == second.emulationCount &&
         AgreeItems(first.emulationList, second.emulationList, first.emulationCount, agree) &&
         AgreeWhereHeld(first.versionText2, second.versionText2) &&
         AgreeWhereHeld(first.versionText3, second.versionText3);
}

bool OptionsAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  constexpr uint16_t kAnyValue = 0xFFFF;
  const auto agree = [](const OptionNode& a, const OptionNode& b) {
    return a.optionCode == b.optionCode &&
           (a.optionValue == kAnyValue || b.optionValue == kAnyValue ||
            a.optionValue == b.optionValue);
  };
  return first.optionCount == second.optionCount &&
         AgreeItems(first.optionList, second.optionList, first.optionCount, agree);
}

bool FontsAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  const auto agree = [](const FontNode& a, const FontNode& b) { return a.fontCode == b.fontCode; };
  return first.fontCount == second.fontCount &&
         AgreeItems(first.fontList, second.fontList, first.fontCount, agree);
}

bool ModelsAgree(const PrnInfoEx& first, const PrnInfoEx& second) {
  return first.recordTag == second.recordTag && first.structSize == second.structSize &&
         AgreeText(first.modelName, second.modelName) &&
         AgreeText(first.manufacturer, second.manufacturer) &&
         AgreeWhereHeld(first.description, second.description) &&
         AgreeWhereHeld(first.versionText1, second.versionText1) &&
         first.modelInfoNumber == second.modelInfoNumber;
}

struct GroupRow {
  uint32_t group;
  bool (*agree)(const PrnInfoEx& first, const PrnInfoEx& second);
};

constexpr GroupRow kGroups[] = {
    {GroupStatusList, StatusesAgree},   //
    {GroupStatus, StatesAgree},         //
    {GroupTrays, TraysAgree},           //
    {GroupBins, BinsAgree},             //
    {GroupEmulation, EmulationsAgree},  //
    {GroupOptions, OptionsAgree},       //
    {GroupFonts, FontsAgree},           //
    {GroupModelInfo, ModelsAgree},      //
};

bool RecordsAgree(const PrnInfoEx& first, const PrnInfoEx& second, uint32_t groups) {
  // A printer that does not respond tells nothing else worth comparing.
  if (first.noResponse == 1 || second.noResponse == 1) return first.noResponse == second.noResponse;
  for (const GroupRow& row : kGroups) {
    if ((groups & row.group) && !row.agree(first, second)) return false;
  }
  return true;
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL PatCmpPrnInfoEX(const PrnInfoEx* first, const PrnInfoEx* second, uint32_t groups,
                                  uint32_t* equal) {
  if (!first || !second) return stm::FailWithSystemError(ERROR_INVALID_HANDLE);
  if (!equal) return stm::FailWithSystemError(ERROR_INVALID_ADDRESS);
  *equal = stm::RecordsAgree(*first, *second, groups);
  return 1;
}
