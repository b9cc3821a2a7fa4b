#include <algorithm>
#include <cstdlib>

#include "allocation_faults.h"
#include "doctest/doctest.h"
#include "kept.h"
#include "picture_support.h"

namespace {

using test::PictureDialog;
using test::Pixels;

const auto kSkipped = doctest::skip(!test::HasWindows());

constexpr uint32_t kSetPasses = 0x1;
constexpr uint32_t kSecondOnly = 0x100;
constexpr uint32_t kGround = 0x005A3C96;  // what a control shows before it is drawn to

struct Step {
  std::string picture;
  std::string layer;
  Pixels pixels;
};

Pixels Combined(const Pixels& destination, const Pixels& source, uint32_t rop) {
  Pixels result = destination;
  const int32_t width = std::min(destination.width, source.width);
  for (int32_t y = 0; y < std::min(destination.height, source.height); ++y) {
    for (int32_t x = 0; x < width; ++x) {
      const uint32_t s = source.at[static_cast<size_t>(y * source.width + x)];
      uint32_t& d = result.at[static_cast<size_t>(y * destination.width + x)];
      switch (rop) {
        case SRCCOPY:
          d = s;
          break;
        case SRCPAINT:
          d |= s;
          break;
        case SRCAND:
          d &= s;
          break;
        case MERGEPAINT:
          d |= ~s & 0x00FFFFFF;
          break;
        default:
          FAIL("a raster operation that no layer has");
      }
    }
  }
  return result;
}

PrnPart PartOf(uint8_t code) {
  PrnPart part{};
  PatGetPrnParts(nullptr, code, &part);
  return part;
}

// The picture as a plain loop over whole pixels draws it, after each layer.
std::vector<Step> DrawPlainly(const std::string& picture, const PrnBitmap& list, Pixels ground,
                              uint32_t flags) {
  std::vector<Step> steps;
  bool first = true;
  for (uint8_t code : list.partCodes) {
    if (code == 0) continue;
    const PrnPart part = PartOf(code);
    const Pixels source = test::ReadBitmap(part.bitmapName);
    if (!(flags & kSecondOnly)) {
      ground = Combined(ground, source, first ? SRCCOPY : part.ropSet);
      first = false;
    }
    ground = Combined(ground, source, flags & kSetPasses ? part.ropSet : part.ropClear);
    steps.push_back({picture, part.bitmapName, ground});
  }
  return steps;
}

void Draw(const PictureDialog& dialog, uint32_t flags) {
  CHECK(PatDrawPrinterBitmap(dialog.handle(), 1, PictureDialog::kControl, flags, 2, 3) == 1);
}

PrnInfo RecordOf(uint32_t statusCode, uint32_t trays) {
  PrnInfo info{};
  info.statusCode = statusCode;
  info.trayCount = trays;
  for (uint32_t i = 0; i < trays; ++i)
    info.trayList[i] = {3 + i, 8};
  return info;
}

struct RearRecord : test::Record {
  StatusNode status{};
  TrayNode tray{};
  OptionNode option{};
  RearRecord(uint16_t code, uint16_t trayId, bool duplex) {
    status.code = code;
    tray.trayId = trayId;
    tray.paperCode = 8;
    option.optionCode = duplex ? OptionDuplex : 2;
    statusCount = trayCount = optionCount = 1;
    statusList = &status;
    trayList = &tray;
    optionList = &option;
  }
  ~RearRecord() {
    statusList = nullptr;
    trayList = nullptr;
    optionList = nullptr;
  }
};

// A record that gives a picture: a flat one, or a list-based one where `rear` is set.
struct Picture {
  const char* name;
  uint16_t status;
  uint16_t trays;  // how many; of the list-based record, which
  bool rear = false;
  bool duplex = false;
};

const Picture kPictures[] = {
    {"ready", 0, 3},
    {"waste toner", 25, 2},
    {"oil", 26, 1},
    {"cleaner", 28, 3},
    {"output full", 34, 3},
    {"top cover", 36, 3},
    {"front cover", 37, 1},
    {"all toners", 38, 3},
    {"service", 40, 1},
    {"unit", 42, 1},
    {"misfeed", 44, 3},
    {"no response", 102, 3},
    {"back view, a mask first", 39, 3},
    {"back cover", 39, 4, true},
    {"back misfeed", 45, 4, true},
    {"back misfeed, duplex", 45, 5, true, true},
    {"tray cover", 89, 4, true},
    {"tray cover, duplex", 90, 5, true, true},
    {"duplex cover", 91, 4, true, true},
    {"duplex misfeed", 96, 4, true, true},
    {"duplex misfeed, no duplex", 97, 4, true},
};

PrnBitmap Compose(const Picture& picture) {
  PrnBitmap list{};
  if (picture.rear) {
    const RearRecord info(picture.status, picture.trays, picture.duplex);
    REQUIRE(PatGetPrnBitmap_Ex(&info, &list) == 1);
  } else {
    const PrnInfo info = RecordOf(picture.status, picture.trays);
    REQUIRE(PatGetPrnBitmap(&info, &list) == 1);
  }
  return list;
}

}  // namespace

TEST_CASE("every layer, and every picture after each of its layers, looks as it did") {
  std::vector<Step> steps;
  for (uint8_t code = 1; code <= 67; ++code) {
    const char* name = PartOf(code).bitmapName;
    steps.push_back({"layer", name, test::ReadBitmap(name)});
    CHECK(steps.back().pixels.width == 320);
    CHECK(steps.back().pixels.height == 200);
  }
  for (const Picture& picture : kPictures) {
    const auto drawn =
        DrawPlainly(picture.name, Compose(picture), test::Plain(320, 200, kGround), kSetPasses);
    steps.insert(steps.end(), drawn.begin(), drawn.end());
  }
  test::Lines lines;
  for (const Step& step : steps) {
    char checksum[16];
    std::snprintf(checksum, sizeof checksum, " %08X",
                  static_cast<unsigned>(test::Checksum(step.pixels)));
    lines.Add(step.picture + ", " + step.layer + checksum);
  }
  // To look at a picture that has changed: STMDATA_IMAGES names the folder it is written to.
  if (const char* folder = std::getenv("STMDATA_IMAGES")) {
    for (const Step& step : steps)
      test::WriteImage(std::string(folder) + '/' + step.picture + ", " + step.layer, step.pixels);
  }
  test::CheckKept("pictures", lines.Text());
}

TEST_CASE("an image layer has no black where its mask has none") {
  for (uint8_t code = 1; code <= 67; ++code) {
    const std::string name = PartOf(code).bitmapName;
    if (name.compare(0, 7, "BMP_PR_") != 0) continue;
    CAPTURE(name);
    const Pixels image = test::ReadBitmap(name.c_str());
    const Pixels mask = test::ReadBitmap(("BMP_PB_" + name.substr(7)).c_str());
    uint32_t stray = 0;
    for (size_t i = 0; i < image.at.size(); ++i)
      stray += mask.at[i] != 0 && (mask.at[i] != 0x00FFFFFF || image.at[i] != 0);
    CHECK(stray == 0);
  }
}

TEST_CASE("pictures are drawn as a plain loop over their pixels draws them" * kSkipped) {
  for (const Picture& picture : kPictures) {
    for (uint32_t flags : {0u, kSetPasses, kSecondOnly, kSetPasses | kSecondOnly, 0xFFFFFEFEu}) {
      CAPTURE(picture.name);
      CAPTURE(flags);
      PictureDialog dialog(320, 200, kGround);
      const auto steps =
          DrawPlainly(picture.name, Compose(picture), test::Plain(320, 200, kGround), flags);
      Draw(dialog, flags);
      const std::string name = std::string(picture.name) + " " + std::to_string(flags & 0x101);
      CHECK(test::SamePixels(name, dialog.read(), steps.back().pixels));
      CHECK(PatGetError() == PatErrorNullRecord);
    }
  }
}

TEST_CASE("the control's edges clip the picture" * kSkipped) {
  const PrnBitmap list = Compose(kPictures[1]);
  for (const auto& [width, height] : {std::pair{1, 1}, {100, 60}, {400, 199}, {319, 260}}) {
    PictureDialog dialog(width, height, kGround);
    const auto steps = DrawPlainly("", list, test::Plain(width, height, kGround), kSetPasses);
    CHECK(PatDrawPrinterBitmap_Ex(dialog.handle(), 0, PictureDialog::kControl, kSetPasses, 0, 0) ==
          1);
    const std::string name = "clipped at " + std::to_string(width);
    CHECK(test::SamePixels(name, dialog.read(), steps.back().pixels));
  }
}

TEST_CASE("the latest successful composition is what is drawn" * kSkipped) {
  const PrnBitmap list = Compose(kPictures[11]);
  PrnBitmap failed{};
  CHECK(PatGetPrnBitmap(nullptr, &failed) == 0);
  PictureDialog dialog(320, 200);
  Draw(dialog, kSetPasses);
  const Pixels ground = test::Plain(320, 200, 0x00FFFFFF);
  CHECK(dialog.read() == DrawPlainly("", list, ground, kSetPasses).back().pixels);

  // A list of more than 16 codes is drawn up to the 16th.
  PrnInfo info{};
  for (uint32_t i = 0; i < 64; ++i)
    info.trayList[i] = {3, PaperTrayMissing};
  info.trayList[8] = {5, PaperTrayMissing};
  info.trayCount = 64;
  uint8_t codes[64];
  uint8_t extraCodes[64];
  PrnBitmap cut{};
  CHECK(PatGetPrnBitmapEx(&info, codes, extraCodes, 64) == 64);
  CHECK(codes[19] == 59);
  std::copy(codes, codes + 16, cut.partCodes);
  Draw(dialog, kSetPasses);
  CHECK(dialog.read() == DrawPlainly("", cut, ground, kSetPasses).back().pixels);
}

TEST_CASE("an empty list, no dialog and no control leave nothing behind" * kSkipped) {
  PictureDialog dialog(320, 200, kGround);
  const Pixels before = dialog.read();
  Compose(kPictures[0]);
  CHECK(PatDrawPrinterBitmap(nullptr, 0, PictureDialog::kControl, kSetPasses, 0, 0) == 1);
  CHECK(PatDrawPrinterBitmap(dialog.handle(), 0, 1, kSetPasses, 0, 0) == 1);
  CHECK(PatDrawPrinterBitmap_Ex(dialog.handle(), 0, -1, kSetPasses, 0, 0) == 1);
  CHECK(dialog.read() == before);
  CHECK(PatGetError() == PatErrorNullRecord);

  char name[16];
  CHECK(PatGetIconName(1, 0, name, sizeof name) == 1);
  const PrnInfo info = RecordOf(39, 0);
  PrnBitmap list{};
  CHECK(PatGetPrnBitmap(&info, &list) == 1);
  Draw(dialog, kSetPasses);
  CHECK(dialog.read() == before);
  CHECK(PatGetError() == PatErrorNone);
}

#ifndef _WIN32
TEST_CASE("what finds no memory is not drawn and leaves nothing behind") {
  PictureDialog dialog(320, 200, kGround);
  const Pixels ground = dialog.read();
  const PrnBitmap list = Compose(kPictures[1]);
  const Pixels whole = DrawPlainly("", list, ground, 0).back().pixels;
  const int32_t before = test::LiveBlocks();
  test::FailAllocation(1, test::Faults::AllFromThere);
  Draw(dialog, 0);
  CHECK_FALSE(HostCreateDialog());
  CHECK(test::EndFaults());
  CHECK(dialog.read() == ground);
  uint32_t number = 1;
  for (bool failed = true; failed; ++number) {
    test::FailAllocation(number, test::Faults::One);
    Draw(dialog, 0);
    failed = test::EndFaults();
    CHECK(test::LiveBlocks() == before);
  }
  CHECK(number > 3);
  CHECK(dialog.read() == whole);
  for (uint32_t block : {1u, 2u}) {
    test::FailAllocation(block, test::Faults::One);
    CHECK_FALSE(HostAddPicture(dialog.handle(), 5, 2, 2));
    CHECK(test::EndFaults());
    CHECK(test::LiveBlocks() == before);
  }
}
#endif
