#include "records/reply.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "records/configuration_blocks.h"
#include "records/option_blocks.h"
#include "records/paper_blocks.h"
#include "records/scanners.h"
#include "records/status_block.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

// How much of the reply a block is. A block that the reply cuts off says nothing reliable: it takes
// nothing.
struct BlockExtent {
  uint32_t text;   // bytes to parse
  uint32_t taken;  // bytes to step over
};

// A block ends with its LF, which belongs to its text, and takes 255 bytes at most.
BlockExtent LineExtent(const Input& rest) {
  constexpr uint32_t kMost = 255;
  const uint32_t most = std::min(Left(rest), kMost);
  const auto* end = static_cast<const char*>(std::memchr(rest.position, kLineFeed, most));
  if (!end) return most == kMost ? BlockExtent{kMost, kMost} : BlockExtent{0, 0};
  const auto length = static_cast<uint32_t>(end + 1 - rest.position);
  return {length, length};
}

constexpr char kEndLetter = ' ';
constexpr uint32_t kEndLength = 2;

// A status block ends with its LF or with the reply's end marker, which do not belong to its text,
// and takes 256 bytes at most.
BlockExtent StatusExtent(const Input& rest) {
  constexpr uint32_t kMost = 256;
  const uint32_t most = std::min(Left(rest), kMost);
  for (uint32_t length = 0; length < most; ++length) {
    const Input at{rest.position + length, rest.end};
    if (*at.position == kLineFeed) return {length, length + 1};
    if (BlockLetter(at) == kEndLetter) return {length, length + kEndLength};
  }
  return most == kMost ? BlockExtent{kMost, kMost} : BlockExtent{0, 0};
}

struct BlockRow {
  char letter;
  BlockExtent (*extent)(const Input& rest);
  void (*parse)(const Input& block, Filling to);
  uint32_t groups;
};

constexpr BlockRow kBlocks[] = {
    {'S', StatusExtent, ParseStatusBlock, GroupStatus | GroupStatusList},  // status
    {'T', LineExtent, ParseTrayBlock, GroupTrays},                         // paper sizes
    {'Z', LineExtent, ParseLevelBlock, GroupTrays},                        // paper levels
    {'L', LineExtent, ParseBinBlock, GroupBins},                           // output bins
    {'V', LineExtent, ParseVersionBlock, GroupModelInfo},                  // version texts
    {'M', LineExtent, ParseNumberBlock, GroupModelInfo},                   // number
    {'E', LineExtent, ParseEmulationBlock, GroupEmulation},                // language in use
    {'F', LineExtent, ParseFontBlock, GroupFonts},                         // resident fonts
    {'A', LineExtent, ParseOption4Block, GroupOptions},                    // option 4
    {'C', LineExtent, ParseDuplexBlock, GroupDuplex},                      // duplex unit
    {'D', LineExtent, ParseOptionBlock, GroupOptions},                     // optional units
    {'\0', nullptr, nullptr, 0},                                           // closing row: no block
};

// Where the letters stand in the table; all others lead to its closing row.
constexpr auto kRowOfLetter = [] {
  std::array<uint8_t, 256> rows;
  rows.fill(std::size(kBlocks) - 1);
  for (uint8_t row = 0; row < std::size(kBlocks) - 1; ++row)
    rows[static_cast<uint8_t>(kBlocks[row].letter)] = row;
  return rows;
}();

// Result: the groups of the blocks that were parsed.
uint32_t WalkReply(Input rest, Filling to) {
  uint32_t groups = 0;
  for (;;) {
    const int8_t letter = BlockLetter(rest);
    if (letter == kEndLetter) {
      Skip(rest, kEndLength);
      continue;
    }
    const BlockRow& row = kBlocks[kRowOfLetter[static_cast<uint8_t>(letter)]];
    if (!row.parse) break;
    const BlockExtent extent = row.extent(rest);
    if (extent.taken == 0) break;
    row.parse({rest.position, rest.position + extent.text}, to);
    groups |= row.groups;
    Skip(rest, extent.taken);
  }
  return groups;
}

}  // namespace

ReplyResult ReadReply(Filling to, const char* reply, int32_t length) {
  if (!to.record || !reply) return {0, 0};
  if (length <= 0) return {1, 0};
  const Input input{reply, reply + length};
  if (BlockLetter(input) == -1) return {0, 0};
  return {1, WalkReply(input, to)};
}

}  // namespace stm

uint32_t STM_CALL SetPrnInfoExFromReadbackCmd(PrnInfoEx* record, const char* reply,
                                              int32_t length) {
  return stm::ReadReply({record, nullptr}, reply, length).walked;
}
