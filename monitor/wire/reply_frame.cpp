#include "wire/reply_frame.h"

namespace stmon {
namespace {

using State = ReplyScanner::State;

// What one byte does. `ended` is set by the last byte of the end marker. Bytes that begin no block
// lose the frame; from there on only the end marker can be recognised.
State Step(State state, char byte, bool& ended) {
  switch (state) {
    case State::AtBlock:
      return byte == kEsc ? State::AfterEsc : State::Lost;
    case State::AfterEsc:
      ended = byte == ' ';
      return byte == 'S' ? State::InStatus : State::InBlock;
    case State::InStatus:
      if (byte == '\n') return State::AtBlock;
      return byte == kEsc ? State::InStatusAfterEsc : State::InStatus;
    case State::InStatusAfterEsc:
      ended = byte == ' ';
      if (byte == '\n') return State::AtBlock;
      return byte == kEsc ? State::InStatusAfterEsc : State::InStatus;
    case State::InBlock:
      return byte == '\n' ? State::AtBlock : State::InBlock;
    case State::Lost:
      return byte == kEsc ? State::LostAfterEsc : State::Lost;
    case State::LostAfterEsc:
      ended = byte == ' ';
      return byte == kEsc ? State::LostAfterEsc : State::Lost;
  }
  return State::Lost;
}

}  // namespace

bool ScanReply(ReplyScanner& scanner, std::string_view bytes) {
  while (scanner.length == 0 && scanner.seen < bytes.size()) {
    bool ended = false;
    scanner.state = Step(scanner.state, bytes[scanner.seen], ended);
    ++scanner.seen;
    if (ended) scanner.length = scanner.seen;
  }
  return scanner.length != 0;
}

std::vector<Block> SplitBlocks(std::string_view reply) {
  std::vector<Block> blocks;
  State state = State::AtBlock;
  size_t start = 0;
  for (size_t i = 0; i < reply.size(); ++i) {
    bool ended = false;
    state = Step(state, reply[i], ended);
    const bool lost = state == State::Lost || state == State::LostAfterEsc;
    if (!ended && state != State::AtBlock) continue;
    const std::string_view bytes = reply.substr(start, i + 1 - start);
    const bool framed = !lost && bytes.size() >= 2;
    blocks.push_back({framed ? bytes[1] : '\0', framed, bytes});
    start = i + 1;
    if (ended) state = State::AtBlock;
  }
  if (start < reply.size()) {
    const std::string_view rest = reply.substr(start);
    blocks.push_back({rest.size() >= 2 && rest[0] == kEsc ? rest[1] : '\0', false, rest});
  }
  return blocks;
}

std::vector<std::string> Fields(const Block& block) {
  std::vector<std::string> fields;
  std::string_view rest = block.bytes;
  if (rest.ends_with('\n')) rest.remove_suffix(1);
  if (rest.ends_with("\x1B ")) rest.remove_suffix(2);
  if (rest.size() < 3) return fields;  // ESC, letter, CR
  rest.remove_prefix(3);
  while (!rest.empty()) {
    const size_t end = rest.find('\r');
    fields.emplace_back(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return fields;
}

}  // namespace stmon
