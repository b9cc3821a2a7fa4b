// The printer picture: its part list, and drawing it beside as many plain copies of the frame as it
// has layers. On Linux only: elsewhere the system draws.
#ifndef _WIN32
#include <cstring>
#include <vector>

#include "bench.h"
#include "stmdata/stmdata.h"

namespace {

constexpr int32_t kControl = 1;
constexpr int32_t kWidth = 320;
constexpr int32_t kHeight = 200;
constexpr int kLayers = 16;

// Toners not placed, one told twice, in a printer with all trays: a full list of 16 layers.
PrnInfo CrowdedRecord() {
  PrnInfo info{};
  info.statusCode = StatusSeveralMarker;
  for (uint32_t code : {73, 73, 74, 75, 76})
    info.statusList[info.statusCount++] = code;
  info.trayCount = 3;
  for (uint32_t i = 0; i < info.trayCount; ++i)
    info.trayList[i] = {3 + i, 8};
  return info;
}

}  // namespace

void bench::BenchPicture() {
  const PrnInfo info = CrowdedRecord();
  PrnBitmap list{};
  const HWND dialog = HostCreateDialog();
  HostAddPicture(dialog, kControl, kWidth, kHeight);
  std::vector<uint32_t> from(kWidth * kHeight), to(kWidth * kHeight);
  const auto copies = [&] {
    for (int i = 0; i < kLayers; ++i) {
      std::memcpy(to.data(), from.data(), to.size() * sizeof to[0]);
      Use(to[0]);
    }
  };
  const auto draw = [&](uint32_t flags) {
    PatGetPrnBitmap(&info, &list);
    PatDrawPrinterBitmap(dialog, 0, kControl, flags, 0, 0);
  };

  Header("picture");
  Row(
      "part list", [&] { PatGetPrnBitmap(&info, &list); },
      [&] {
        std::memset(&list, 0, sizeof list);
        Use(list);
      },
      1000);
  Row(
      "16 layers, both passes as the picture is shown", [&] { draw(0x1); }, copies, 1);
  Row(
      "16 layers, both passes, second one merging", [&] { draw(0x0); }, copies, 1);
  HostDestroyDialog(dialog);
}
#else
#include "bench.h"

void bench::BenchPicture() {}
#endif
