#include "snapshot/record_fields.h"

#include <cstring>
#include <type_traits>

namespace stmon {
namespace {

template <class Node, class Take>
void ForEach(const Node* node, uint32_t count, Take take) {
  for (; node && count > 0; node = node->next, --count)
    take(*node);
}

template <class Entry, size_t Capacity, class Take>
void ForEachEntry(const Entry (&entries)[Capacity], uint32_t count, Take take) {
  for (size_t i = 0; i < Capacity && i < count; ++i)
    take(entries[i]);
}

template <class Pointer>
requires std::is_pointer_v<Pointer> std::string Text(const Pointer& text) {
  return text ? text : "";
}

template <size_t Capacity>
std::string Text(const char (&text)[Capacity]) {
  return {text, strnlen(text, Capacity)};
}

// The fields that bear the same name in both records.
template <class Info>
void TakeCommon(const Info& info, RecordFields& fields) {
  fields.versions = {Text(info.versionText1), Text(info.versionText2), Text(info.versionText3)};
  fields.maker = Text(info.manufacturer);
  fields.model = Text(info.modelName);
  fields.description = Text(info.description);
  fields.modelCode = info.modelCode;
  fields.number = info.modelInfoNumber;
  fields.language = info.emulationCode;
  fields.currentTray = info.currentTray;
  fields.currentBin = info.currentBin;
  fields.online = info.online == 1;
}

// The flat record has no list of options but fields and bits, which stand for their codes.
struct OptionBit {
  uint32_t PrnInfo::*field;
  uint32_t mask;   // bits that are looked at
  uint32_t value;  // what they must be
  uint32_t code;
};

constexpr OptionBit kOptionBits[] = {
    //  field                 mask  value option
    {&PrnInfo::duplexFlag, ~0u, 1, 1},       // duplex unit
    {&PrnInfo::option2Flag, ~0u, 3, 2},      // hard disk unit
    {&PrnInfo::option2Flag, ~0u, 1, 3},      // electronic sort; the field cannot tell of both
    {&PrnInfo::option4Flag, ~0u, 1, 4},      //
    {&PrnInfo::optionBits1, 0x1, 0x1, 5},    //
    {&PrnInfo::optionBits1, 0x2, 0x2, 6},    //
    {&PrnInfo::optionBits1, 0x4, 0x4, 9},    //
    {&PrnInfo::optionBits1, 0x8, 0x8, 10},   //
    {&PrnInfo::optionBits2, 0x1, 0x1, 7},    //
    {&PrnInfo::optionBits2, 0x2, 0x2, 8},    // or 15: the bit stands for both
    {&PrnInfo::optionBits2, 0x4, 0x4, 13},   //
    {&PrnInfo::finisherBits, 0x1, 0x1, 11},  // stapler
    {&PrnInfo::finisherBits, 0x2, 0x2, 12},  // puncher
};

}  // namespace

const char* TrayStateWord(TrayState state) {
  constexpr const char* kWords[] = {"unknown", "paper", "empty", "not-in-place"};
  return kWords[static_cast<size_t>(state)];
}

RecordFields FieldsOf(const PrnInfoEx& record) {
  RecordFields fields;
  TakeCommon(record, fields);
  ForEach(record.statusList, record.statusCount,
          [&](const StatusNode& node) { fields.codes.push_back(node.code); });
  ForEach(record.trayList, record.trayCount, [&](const TrayNode& node) {
    fields.trays.push_back({node.trayId, node.paperCode, "", node.paperLevel});
  });
  ForEach(record.binList, record.binCount, [&](const BinNode& node) {
    fields.bins.push_back({node.binId, node.binState});
  });
  ForEach(record.fontList, record.fontCount,
          [&](const FontNode& node) { fields.fonts.push_back(node.fontCode); });
  ForEach(record.emulationList, record.emulationCount,
          [&](const EmulationNode& node) { fields.languages.push_back(node.emulationCode); });
  // Nodes of code 0 stand between the others and are not counted.
  for (const OptionNode* node = record.optionList; node; node = node->next) {
    if (node->optionCode != 0) fields.options.push_back({node->optionCode, node->optionValue});
  }
  return fields;
}

RecordFields FieldsOf(const PrnInfo& info) {
  RecordFields fields;
  TakeCommon(info, fields);
  const bool several = (info.statusCode & 0xFF) == StatusSeveralMarker && info.statusCount != 0;
  if (several) {
    ForEachEntry(info.statusList, info.statusCount,
                 [&](uint32_t code) { fields.codes.push_back(code); });
  } else {
    fields.codes.push_back(info.statusCode);
  }
  ForEachEntry(info.trayList, info.trayCount, [&](const TrayPaper& tray) {
    fields.trays.push_back({tray.trayId, tray.paperCode, "", {}});
  });
  // Both arrays are filled from the same trays in the same order.
  size_t next = 0;
  ForEachEntry(info.trayLevelList, info.trayLevelCount, [&](const TrayLevel& level) {
    if (next < fields.trays.size()) fields.trays[next++].level = level.paperLevel;
  });
  ForEachEntry(info.binList, info.binCount, [&](const BinEntry& bin) {
    fields.bins.push_back({bin.binId, bin.binState});
  });
  ForEachEntry(info.fontList, info.fontCount, [&](uint32_t code) { fields.fonts.push_back(code); });
  ForEachEntry(info.emulationList, info.emulationCount,
               [&](uint32_t code) { fields.languages.push_back(code); });
  for (const OptionBit& row : kOptionBits) {
    if ((info.*row.field & row.mask) == row.value) fields.options.push_back({row.code, {}});
  }
  return fields;
}

}  // namespace stmon
