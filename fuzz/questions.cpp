// Every question about records of any contents: flat ones of any bytes, list-based ones with real
// chains and any counts. Buffers have exactly the size that they are said to have.
#include <numeric>

#include "source.h"
#include "stmdata/languages.h"

namespace {

using fuzz::Require;
using fuzz::Source;

// A buffer of `size` bytes that must hold a terminated text afterwards, unless it has no room.
template <class Ask>
void AskText(uint32_t size, Ask ask) {
  const auto buffer = std::make_unique<char[]>(size);
  std::memset(buffer.get(), 0xA5, size);
  Require(ask(buffer.get()) <= 1);
  if (size > 0) Require(std::memchr(buffer.get(), '\0', size) != nullptr);
}

struct Numbers {
  uint32_t code;
  uint32_t size;  // of a text buffer
  uint8_t part;
  uint8_t listSize;  // of a part list
};

// A part list holds codes of the parts table, then zeros alone.
void CheckParts(const uint8_t* codes, uint32_t size) {
  bool ended = false;
  for (uint32_t i = 0; i < size; ++i) {
    Require(codes[i] <= 67 && !(ended && codes[i] != 0));
    ended = codes[i] == 0;
  }
}

template <class Compose>
void AskParts(uint32_t size, Compose compose) {
  const auto codes = std::make_unique<uint8_t[]>(size);
  const auto extra = std::make_unique<uint8_t[]>(size);
  const uint32_t result = compose(codes.get(), extra.get(), static_cast<int32_t>(size));
  Require(result == (size < 16 ? 0 : 64));
  if (result != 0) CheckParts(codes.get(), size < 64 ? size : 64);
}

void CheckRow(uint32_t result, const StatusRow& row) {
  Require(result == 0 || (row.code <= 102 && row.level >= 1 && row.level <= 3));
}

void Ask(PrnInfo& info, const Numbers& n) {
  StatusRow row{};
  PrnBitmap bitmap{};
  PrnPart part{};
  CheckRow(PatGetPrinterStatus(&info, &row), row);
  const auto size = static_cast<int32_t>(n.size);
  AskText(n.size, [&](char* text) { return PatGetSimpleString(&info, text, size); });
  AskText(n.size, [&](char* text) { return PatGetDetailString(&info, text, n.size); });
  AskText(n.size, [&](char* text) { return PatGetRecoveryString(&info, text, size); });
  AskText(17, [&](char* text) { return PatGetErrParts(&info, text); });
  AskText(8, [&](char* text) { return PatGetPaperName(&info, n.code, text); });
  AskText(17, [&](char* text) { return PatGetPaperBitmap(&info, n.code, text); });
  AskText(12, [&](char* text) { return PatGetTrayName(&info, n.code, text); });
  AskText(12, [&](char* text) { return PatGetIconName(n.code & 1, n.code, text, 0); });
  Require(PatGetPrnParts(&info, n.part, &part) == (n.part <= 67));
  Require(PatGetPrnBitmap(&info, &bitmap) == 1);
  CheckParts(bitmap.partCodes, sizeof bitmap.partCodes);
  AskParts(n.listSize, [&info](uint8_t* codes, uint8_t* extra, int32_t bytes) {
    return PatGetPrnBitmapEx(&info, codes, extra, bytes);
  });
}

void Ask(const PrnInfoEx& info, const Numbers& n) {
  StatusRow row{};
  PrnBitmap bitmap{};
  PrnPart part{};
  CheckRow(PatGetPrinterStatus_Ex(&info, &row), row);
  const auto size = static_cast<int32_t>(n.size);
  AskText(n.size, [&](char* text) { return PatGetSimpleString_Ex(&info, text, size); });
  AskText(n.size, [&](char* text) { return PatGetDetailString_Ex(&info, text, size); });
  AskText(n.size, [&](char* text) { return PatGetRecoveryString_Ex(&info, text, size); });
  AskText(17, [&](char* text) { return PatGetErrParts_Ex(&info, text); });
  AskText(8, [&](char* text) { return PatGetPaperName_Ex(&info, n.code, text); });
  AskText(17, [&](char* text) { return PatGetPaperBitmap_Ex(&info, n.code, text); });
  AskText(12, [&](char* text) { return PatGetTrayName_Ex(&info, n.code, text); });
  Require(PatGetPrnParts_Ex(&info, n.part, &part) == (n.part <= 67));
  Require(PatGetPrnBitmap_Ex(&info, &bitmap) == 1);
  CheckParts(bitmap.partCodes, sizeof bitmap.partCodes);
  AskParts(n.listSize, [&info](uint8_t* codes, uint8_t* extra, int32_t bytes) {
    return PatGetPrnBitmapEx_Ex(&info, codes, extra, bytes);
  });
}

// Draws the latest part list, whichever record it came from.
void Draw(uint32_t flags) {
  static const HWND dialog = [] {
    const HWND made = HostCreateDialog();
    Require(HostAddPicture(made, 1, 170, 150) == 1);
    return made;
  }();
  Require(PatDrawPrinterBitmap(dialog, 0, 1, flags, 0, 0) == 1);
}

void AskDeviceName(uint32_t device, uint32_t capacity) {
  const auto name = std::make_unique<char[]>(capacity);
  uint32_t size = capacity;
  if (PatGetDeviceName(device, name.get(), &size)) Require(std::strlen(name.get()) + 1 == size);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Source source(data, size);
  const uint32_t row = source.Below(std::size(LocaleTable) + 1);
  std::string language = row < std::size(LocaleTable) ? LocaleTable[row].code : "xx";
  PatSetLocale(language.data());
  Numbers numbers;
  numbers.code = source.Number();
  numbers.size = source.Below(2) ? source.Below(64) : source.Byte() * 4u;
  numbers.part = source.Byte();
  numbers.listSize = source.Byte();

  PrnInfo flat;
  fuzz::DrawFlat(source, flat);
  Ask(flat, numbers);
  AskDeviceName(163 + source.Below(3), source.Below(34));
  fuzz::ListRecord record;
  record.Draw(source);
  Ask(record, numbers);
  // One drawing takes as long as many questions: one input in 32 draws, and what is derived from it
  // need not.
  if (std::accumulate(data, data + size, 0u) % 32 == 0)
    Draw(source.Below(2) ? 0x101 : source.Word());
  return 0;
}
