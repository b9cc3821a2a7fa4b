#include "records/reply.h"

#include <algorithm>

#include "records/configuration_blocks.h"
#include "records/letter_index.h"
#include "records/option_blocks.h"
#include "records/paper_blocks.h"
#include "records/scanners.h"
#include "records/status_block.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

constexpr char kStatusLetter = 'S';  // of the one block with an end of its own

struct BlockRow {
  char letter;
  void (*parse)(const Block& block, Filling to);
  uint32_t groups;
};

constexpr BlockRow kBlocks[] = {
    {kStatusLetter, ParseStatusBlock, GroupStatus | GroupStatusList},  // status
    {'T', ParseTrayBlock, GroupTrays},                                 // paper sizes
    {'Z', ParseLevelBlock, GroupTrays},                                // paper levels
    {'L', ParseBinBlock, GroupBins},                                   // output bins
    {'V', ParseVersionBlock, GroupModelInfo},                          // version texts
    {'M', ParseNumberBlock, GroupModelInfo},                           // number
    {'E', ParseEmulationBlock, GroupEmulation},                        // language in use
    {'F', ParseFontBlock, GroupFonts},                                 // resident fonts
    {'A', ParseOption4Block, GroupOptions},                            // option 4
    {'C', ParseDuplexBlock, GroupDuplex},                              // duplex unit
    {'D', ParseOptionBlock, GroupOptions},                             // optional units
    {'\0', nullptr, 0},                                                // closing row: no block
};

// Result: the groups of the blocks that were parsed.
uint32_t WalkReply(Input rest, Filling to) {
  uint32_t groups = 0;
  Block block;
  for (;;) {
    const int8_t letter = BlockLetter(rest);
    if (letter == kEndLetter) {
      Skip(rest, kEndLength);
      continue;
    }
    const BlockRow& row = RowOfLetter<kBlocks>(static_cast<char>(letter));
    if (!row.parse) break;
    const uint32_t taken =
        letter == kStatusLetter ? ScanStatusBlock(rest, block) : ScanBlock(rest, block);
    if (taken == 0) break;
    row.parse(block, to);
    groups |= row.groups;
    rest.position += taken;
  }
  return groups;
}

}  // namespace

ReplyResult ReadReply(Filling to, const char* reply, int32_t length) {
  if (!to.record || !reply) return {0, 0};
  // Whether it is a reply tells its first byte, which is there whatever the length says.
  const Input input{reply, reply + std::max(length, 1)};
  if (BlockLetter(input) == -1) return {0, 0};
  return {1, WalkReply(input, to)};
}

}  // namespace stm

uint32_t STM_CALL SetPrnInfoExFromReadbackCmd(PrnInfoEx* record, const char* reply,
                                              int32_t length) {
  return stm::ReadReply({record, nullptr}, reply, length).walked;
}
