// Where a readback reply ends, and which blocks it is made of.
//
//   ESC letter CR field CR field ... LF     a block
//   ESC space                               the end marker
//   ESC S CR ... ESC space                  a status block may be ended by the marker itself
//
// Only the frame is read here; what the fields mean is the library's business.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace stmon {

constexpr char kEsc = 0x1B;

// The state between two bytes, so that each byte of a reply that trickles in is looked at once.
struct ReplyScanner {
  enum class State { AtBlock, AfterEsc, InStatus, InStatusAfterEsc, InBlock, Lost, LostAfterEsc };
  State state = State::AtBlock;
  size_t seen = 0;    // bytes looked at
  size_t length = 0;  // bytes of the reply with its end marker, 0 while the end has not been seen
};

// Looks at the bytes that were not there at the last call. Result: the end marker has been seen.
bool ScanReply(ReplyScanner& scanner, std::string_view bytes);

struct Block {
  char letter = 0;         // 0: bytes that are no block
  bool whole = false;      // ended by LF or the end marker
  std::string_view bytes;  // from ESC to the end, inclusive
};

std::vector<Block> SplitBlocks(std::string_view reply);

// The fields of a block, without what frames them; none for the end marker.
std::vector<std::string> Fields(const Block& block);

}  // namespace stmon
