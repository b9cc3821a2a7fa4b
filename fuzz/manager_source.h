// A print manager's record drawn from the bytes of the fuzzer.
#pragma once

#include <iterator>

#include "source.h"

namespace fuzz {

inline const char* const kAllOnes = reinterpret_cast<const char*>(STM_ABSENT_POINTER);

inline const char* const kManagerNames[] = {
    "HandTray",
    "Tray1",
    "Tray 2",
    "LCT",
    "MultiA4",
    "Finisher",
    "Print Post Bin9",
    "NVDL",
    "WXDL-C",
    "TIFF",
    "GOTHIC",
    "OrlexScript2",
    "A4",
    "A4 ",
    "???",
    "-1",
    "",
    "\x95\x73\x96\xBE",
    "ZENTA C210",
    "\x8A\xAF\x90\xBB",
};

inline const char* Name(Source& source) {
  return source.Text(kManagerNames, kAllOnes);
}

inline uint32_t Size(Source& source) {
  static const uint32_t kSizes[] = {STM_ABSENT, 0, 100, 148, 210, 215, 297, 355, 420};
  return kSizes[source.Below(std::size(kSizes))];
}

inline PMInputTray Draw(Source& s, PMInputTray*) {
  return {Name(s), s.Below(2) ? s.Word() : s.Number(), 0, Name(s), Name(s), Size(s), Size(s)};
}
inline PMOutputBin Draw(Source& s, PMOutputBin*) {
  return {Name(s), s.Number(), Name(s)};
}
inline PMEmulation Draw(Source& s, PMEmulation*) {
  return {Name(s), Name(s), Name(s)};
}
inline PMFont Draw(Source& s, PMFont*) {
  return {Name(s)};
}
inline PMOption Draw(Source& s, PMOption*) {
  return {s.Number()};
}
inline PMStatusItem Draw(Source& s, PMStatusItem*) {
  return {0, s.Number()};
}

template <class Pointer>
const Pointer* Absent(Source& source) {
  return source.Below(2) ? nullptr : reinterpret_cast<const Pointer*>(kAllOnes);
}

template <class Item>
const PMItemGroup* DrawGroup(Source& source) {
  const uint32_t kind = source.Below(16);
  if (kind == 0) return Absent<PMItemGroup>(source);
  std::vector<const void*> items(kind == 1 ? source.Byte() : source.Below(5));
  for (const void*& item : items) {
    item = Absent<void>(source);
    if (source.Below(16)) item = source.Keep(Draw(source, static_cast<Item*>(nullptr)));
  }
  PMItemGroup group;
  group.count = kind == 2 ? STM_ABSENT : static_cast<uint32_t>(items.size());
  group.items = kind == 3 ? reinterpret_cast<const void* const*>(Absent<void>(source))
                          : static_cast<const void* const*>(
                                source.Keep(items.data(), items.size() * sizeof(void*)));
  group.current = source.Number();
  return source.Keep(group);
}

inline PMPrnInfo DrawManager(Source& source) {
  PMPrnInfo manager;
  std::memset(&manager, 0xA5, sizeof manager);
  const uint32_t bits = source.Below(2) ? source.Number() : 1u << source.Below(32);
  manager.statusInfo = source.Below(8) ? source.Keep(PMStatusInfo{bits, source.Number()})
                                       : Absent<PMStatusInfo>(source);
  manager.modelInfo = source.Below(8)
                          ? source.Keep(PMModelInfo{Name(source), Name(source), source.Number()})
                          : Absent<PMModelInfo>(source);
  manager.inputTrayInfo = DrawGroup<PMInputTray>(source);
  manager.outputBinInfo = DrawGroup<PMOutputBin>(source);
  manager.emulationInfo = DrawGroup<PMEmulation>(source);
  manager.fontInfo = DrawGroup<PMFont>(source);
  manager.optionInfo = DrawGroup<PMOption>(source);
  manager.statusListInfo = DrawGroup<PMStatusItem>(source);
  return manager;
}

}  // namespace fuzz
