// The group bits that a walk leaves behind, which no exported call tells.
#include "doctest/doctest.h"
#include "records/reply.h"
#include "support.h"

TEST_CASE("a walk leaves the group bits of the blocks that it dispatched") {
  struct {
    const char* why;
    std::string reply;
    uint32_t result;
    uint32_t groups;
  } const rows[] = {
      {"status and trays", "\x1BS\r0\r0\r1\r1\n\x1BT\r1\r5\n\x1B ", 1, 0x8000A},
      {"the end marker alone", "\x1B ", 1, 0},
      {"no block at the start", "S\r0\r0\r1\r1\n", 0, 0},
      {"levels and bins", "\x1BZ\r1\r5\n\x1BL\r1\r0\n", 1, 0x18},
      {"an unknown letter ends the walk", "\x1BS\r0\r0\r1\r1\n\x1BH\n\x1BT\r1\r5\n", 1, 0x80002},
      {"a block that is cut off adds nothing", "\x1BS\r0\r0\r1\r1\n\x1BT\r1\r5", 1, 0x80002},
  };
  for (const auto& row : rows) {
    CAPTURE(row.why);
    test::Record record;
    CHECK(test::Parse(record, row.reply) == row.result);
    CHECK(stm::LastParseFlags() == row.groups);
  }
}

TEST_CASE("the groups of an earlier walk are forgotten, also by a call that walks nothing") {
  test::Record record;
  for (int32_t length : {0, -1, INT32_MIN}) {
    test::Parse(record, "\x1BL\r1\r0\n");
    REQUIRE(stm::LastParseFlags() == GroupBins);
    CHECK(SetPrnInfoExFromReadbackCmd(&record, "\x1BL\r1\r0\n", length) == 1);
    CHECK(stm::LastParseFlags() == 0);
  }
}
