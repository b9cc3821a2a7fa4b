// The group bits of a walk, which no exported call tells.
#include "doctest/doctest.h"
#include "records/reply.h"
#include "support.h"

TEST_CASE("a walk gives the group bits of the blocks that it dispatched") {
  struct {
    const char* why;
    std::string reply;
    uint32_t result;
    uint32_t groups;
  } const rows[] = {
      {"status and trays", "\033S\r0\r0\r1\r1\n\033T\r1\r5\n\033 ", 1, 0x8000A},
      {"the end marker alone", "\033 ", 1, 0},
      {"no bytes", "", 0, 0},
      {"the first byte of a reply", "\033", 1, 0},
      {"no block at the start", "S\r0\r0\r1\r1\n", 0, 0},
      {"levels and bins", "\033Z\r1\r5\n\033L\r1\r0\n", 1, 0x18},
      {"an unknown letter ends the walk", "\033S\r0\r0\r1\r1\n\033H\n\033T\r1\r5\n", 1, 0x80002},
      {"a block that is cut off adds nothing", "\033S\r0\r0\r1\r1\n\033T\r1\r5", 1, 0x80002},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    test::Record record;
    const auto length = static_cast<int32_t>(row.reply.size());
    const stm::ReplyResult result = stm::ReadReply({&record, nullptr}, row.reply.data(), length);
    CHECK(result.walked == row.result);
    CHECK(result.parseFlags == row.groups);
  }
}
