#include "platform/linux/code_pages/code_page.h"

#include <iterator>
#include <string_view>

#include "platform/linux/code_pages/tables.h"

namespace stm {
namespace {

constexpr uint16_t kDefaultCode = '?';
constexpr uint16_t kDefaultUnit932 = 0x30FB;
constexpr uint32_t kFirstTrail = 0x40;
constexpr uint32_t kLastTrail = 0xFC;
constexpr uint32_t kTrails = kLastTrail - kFirstTrail + 1;

constexpr bool IsLeadByte932(uint32_t byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

// Where a lead byte's row stands in the table of double-byte codes.
constexpr uint32_t LeadRow(uint32_t byte) {
  return byte < 0xA0 ? byte - 0x81 : byte - 0xE0 + 0x1F;
}
static_assert(std::size(kDouble932) == (LeadRow(0xFC) + 1) * kTrails + 1);
static_assert(std::size(kSingle932) == 257 && std::size(kSingle1250) == 257);

// Units of a whole plane, filled while compiling, before the rows without a code are dropped.
struct Plane {
  uint16_t codes[0x10000];
  bool known[0x10000];
};

constexpr void Learn(Plane& plane, uint16_t unit, uint32_t code) {
  if (plane.known[unit]) return;
  plane.known[unit] = true;
  plane.codes[unit] = static_cast<uint16_t>(code);
}

// The first code that is read as a unit writes it, unless `fits` says otherwise.
template <size_t Runs>
constexpr Plane Invert(const char16_t* single, std::u16string_view doubles,
                       const CodeRun (&fits)[Runs]) {
  Plane plane{};
  for (uint16_t& code : plane.codes)
    code = kDefaultCode;
  for (uint32_t byte = 0; byte < 0x100; ++byte) {
    if (doubles.empty() || !IsLeadByte932(byte)) Learn(plane, single[byte], byte);
  }
  for (uint32_t lead = 0; lead < 0x100; ++lead) {
    if (doubles.empty() || !IsLeadByte932(lead)) continue;
    for (uint32_t trail = kFirstTrail; trail <= kLastTrail; ++trail)
      Learn(plane, doubles[LeadRow(lead) * kTrails + trail - kFirstTrail], lead << 8 | trail);
  }
  for (const CodeRun& run : fits) {
    for (uint32_t i = 0; i < run.count; ++i)
      plane.codes[run.from + i] = static_cast<uint16_t>(run.to + i);
  }
  return plane;
}

constexpr bool IsEmptyRow(const Plane& plane, uint32_t high) {
  for (uint32_t low = 0; low < 0x100; ++low) {
    if (plane.codes[high << 8 | low] != kDefaultCode) return false;
  }
  return true;
}

constexpr size_t CountRows(const Plane& plane) {
  size_t rows = 1;
  for (uint32_t high = 0; high < 0x100; ++high)
    rows += !IsEmptyRow(plane, high);
  return rows;
}

// Row 0 answers for every row without a code.
template <size_t Rows>
struct EncodeTable {
  uint8_t pages[256];
  uint16_t codes[Rows][256];
};

template <size_t Rows>
constexpr EncodeTable<Rows> Compact(const Plane& plane) {
  EncodeTable<Rows> table{};
  for (uint16_t& code : table.codes[0])
    code = kDefaultCode;
  uint32_t row = 0;
  for (uint32_t high = 0; high < 0x100; ++high) {
    if (IsEmptyRow(plane, high)) continue;
    table.pages[high] = static_cast<uint8_t>(++row);
    for (uint32_t low = 0; low < 0x100; ++low)
      table.codes[row][low] = plane.codes[high << 8 | low];
  }
  return table;
}

constexpr Plane Plane932() {
  return Invert(kSingle932, {kDouble932, std::size(kDouble932) - 1}, kFits932);
}
constexpr Plane Plane1250() {
  return Invert(kSingle1250, {}, kFits1250);
}
constexpr Plane Plane1252() {
  return Invert(kSingle1252, {}, kFits1252);
}

constexpr auto kEncode932 = Compact<CountRows(Plane932())>(Plane932());
constexpr auto kEncode1250 = Compact<CountRows(Plane1250())>(Plane1250());
constexpr auto kEncode1252 = Compact<CountRows(Plane1252())>(Plane1252());

constexpr CodePage kCodePages[] = {
    {932, kSingle932, kDouble932, kEncode932.pages, kEncode932.codes, kCapitals932,
     std::size(kCapitals932)},
    {1250, kSingle1250, nullptr, kEncode1250.pages, kEncode1250.codes, kCapitals1250,
     std::size(kCapitals1250)},
    {1252, kSingle1252, nullptr, kEncode1252.pages, kEncode1252.codes, kCapitals1252,
     std::size(kCapitals1252)},
};

}  // namespace

const CodePage* FindCodePage(uint32_t number) {
  for (const CodePage& page : kCodePages) {
    if (page.number == number) return &page;
  }
  return nullptr;
}

bool IsLeadByte(const CodePage& page, uint8_t byte) {
  return page.doubles && IsLeadByte932(byte);
}

Decoded DecodeAt(const CodePage& page, const uint8_t* bytes, uint32_t left) {
  if (!IsLeadByte(page, bytes[0])) return {page.single[bytes[0]], 1};
  if (left < 2 || bytes[1] == 0) return {kDefaultUnit932, 1};
  if (bytes[1] < kFirstTrail || bytes[1] > kLastTrail) return {kDefaultUnit932, 2};
  return {page.doubles[LeadRow(bytes[0]) * kTrails + bytes[1] - kFirstTrail], 2};
}

uint16_t CapitalOf(const CodePage& page, uint16_t code) {
  for (uint32_t i = 0; i < page.capitalRuns; ++i) {
    const CodeRun& run = page.capitals[i];
    if (code >= run.from && code < run.from + run.count)
      return static_cast<uint16_t>(run.to + (code - run.from));
  }
  return code;
}

}  // namespace stm
