#include "records/reply.h"

#include <atomic>
#include <cstring>

#include "records/configuration_blocks.h"
#include "records/option_blocks.h"
#include "records/paper_blocks.h"
#include "records/scanners.h"
#include "records/status_block.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

std::atomic<uint32_t> lastParseFlags{0};

struct BlockRow {
  char letter;
  uint16_t (*parse)(const Input& block, PrnInfoEx* record);
  uint32_t groups;
};

constexpr BlockRow kBlocks[] = {
    {'S', ParseStatusBlock, GroupStatus | GroupStatusList},  // status
    {'T', ParseTrayBlock, GroupTrays},                       // paper sizes
    {'Z', ParseLevelBlock, GroupTrays},                      // paper levels
    {'L', ParseBinBlock, GroupBins},                         // output bins
    {'V', ParseVersionBlock, GroupModelInfo},                // version texts
    {'M', ParseNumberBlock, GroupModelInfo},                 // number
    {'E', ParseEmulationBlock, GroupEmulation},              // printer language in use
    {'F', ParseFontBlock, GroupFonts},                       // resident fonts
    {'A', ParseOption4Block, GroupOptions},                  // option 4
    {'C', ParseDuplexBlock, GroupDuplex},                    // duplex unit
    {'D', ParseOptionBlock, GroupOptions},                   // optional units
};

constexpr char kEndLetter = ' ';
constexpr uint32_t kEndLength = 2;

const BlockRow* FindBlock(int8_t letter) {
  for (const BlockRow& row : kBlocks) {
    if (row.letter == letter) return &row;
  }
  return nullptr;
}

// Whether the block's end has arrived: its LF, for a status block also the end marker. A reply that
// was cut off inside a block says nothing reliable in it.
bool IsComplete(const Input& block, int8_t letter) {
  if (letter != 'S') return std::memchr(block.position, kLineFeed, Left(block)) != nullptr;
  for (Input at = block; Left(at) > 0; Skip(at, 1)) {
    if (Peek(at) == kLineFeed || BlockLetter(at) == kEndLetter) return true;
  }
  return false;
}

void WalkReply(Input rest, PrnInfoEx* record) {
  while (Peek(rest) != '\0') {
    const int8_t letter = BlockLetter(rest);
    if (letter == kEndLetter) {
      Skip(rest, kEndLength);
      continue;
    }
    const BlockRow* row = FindBlock(letter);
    if (!row || !IsComplete(rest, letter)) return;
    Skip(rest, row->parse(rest, record));
    lastParseFlags.fetch_or(row->groups, std::memory_order_relaxed);
  }
}

}  // namespace

uint32_t LastParseFlags() {
  return lastParseFlags.load(std::memory_order_relaxed);
}

}  // namespace stm

uint32_t STM_CALL SetPrnInfoExFromReadbackCmd(PrnInfoEx* record, const char* reply,
                                              int32_t length) {
  stm::lastParseFlags.store(0, std::memory_order_relaxed);
  if (!record || !reply) return 0;
  if (length <= 0) return 1;
  const stm::Input input{reply, reply + length};
  if (stm::BlockLetter(input) == -1) return 0;
  stm::WalkReply(input, record);
  return 1;
}
