#include "records/reply.h"

#include <algorithm>

#include "records/configuration_blocks.h"
#include "records/option_blocks.h"
#include "records/paper_blocks.h"
#include "records/row_index.h"
#include "records/scanners.h"
#include "records/status_block.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

using enum BlockEnd;

struct BlockRow {
  char letter;
  BlockEnd end;
  void (*parse)(const Block& block, Filling to);
  uint32_t groups;
};

constexpr BlockRow kBlocks[] = {
    // letter, end, parser, groups
    {'S', LineOrMarker, ParseStatusBlock, GroupStatus | GroupStatusList},  // status
    {'T', Line, ParseTrayBlock, GroupTrays},                               // paper sizes
    {'Z', Line, ParseLevelBlock, GroupTrays},                              // paper levels
    {'L', Line, ParseBinBlock, GroupBins},                                 // output bins
    {'V', Line, ParseVersionBlock, GroupModelInfo},                        // version texts
    {'M', Line, ParseNumberBlock, GroupModelInfo},                         // number
    {'E', Line, ParseEmulationBlock, GroupEmulation},                      // language in use
    {'F', Line, ParseFontBlock, GroupFonts},                               // resident fonts
    {'A', Line, ParseOption4Block, GroupOptions},                          // option 4
    {'C', Line, ParseDuplexBlock, GroupDuplex},                            // duplex unit
    {'D', Line, ParseOptionBlock, GroupOptions},                           // optional units
    {'\0', Line, nullptr, 0},                                              // closing row: no block
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
    const BlockRow& row = RowOf<kBlocks, &BlockRow::letter>(static_cast<uint8_t>(letter));
    if (!row.parse) break;
    if (!ScanBlock(rest, row.end, block)) break;
    rest.position = block.after;
    groups |= row.groups;
    row.parse(block, to);
  }
  return groups;
}

}  // namespace

ReplyResult ReadReply(Filling to, const char* reply, int32_t length) {
  if (!to.record || !reply) return {0, 0};
  // The first byte tells whether it is a reply; it is there whatever the length says.
  const Input input{reply, reply + std::max(length, 1)};
  if (BlockLetter(input) == -1) return {0, 0};
  return {1, WalkReply(input, to)};
}

}  // namespace stm

uint32_t STM_CALL SetPrnInfoExFromReadbackCmd(PrnInfoEx* record, const char* reply,
                                              int32_t length) {
  return stm::ReadReply({record, nullptr}, reply, length).walked;
}
