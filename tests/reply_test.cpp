// Replies and the records they leave.
#include "describe.h"
#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct ReplyCase {
  const char* why;
  std::vector<std::string> replies;  // one after the other into one record
  std::string expected;
};

const ReplyCase kReplies[] = {
    {"the sample",
     {"\033S\r0\r0\r1\r1\n\033T\r1\r5\n\033 "},
     "status[0] online tray=3 trays[3:7:0] bin=1"},
    {"the end marker alone", {"\033 \0"s}, ""},
    {"a zero byte where a block should begin", {"\033T\r1\r5\n\0\033L\r1\r1\n"s}, "trays[3:7:0]"},
    {"blocks after the end marker", {"\033 \033L\r1\r1\n"}, "bins[1:1]"},
    {"an unknown letter ends the walk", {"\033L\r1\r1\n\033H\n\033T\r1\r5\n"}, "bins[1:1]"},

    {"two codes", {"\033S\r4,5\r0\r2\r3\n"}, "status[4 5] online tray=4 bin=3"},
    {"flag 1 is offline", {"\033S\r4,5\r1\r2\r3\n"}, "status[4 5] tray=4 bin=3"},
    {"a flag that is no digit is online", {"\033S\r4\rx\r2\r3\n"}, "status[4] online tray=4 bin=3"},
    {"no bin", {"\033S\r0\r0\r1\r9\n\033S\r0\r0\rT\n"}, "status[0] online tray=1"},
    {"unknown tray and bin", {"\033S\r0\r0\rX\r16\n"}, "status[0] online bin=255"},
    {"an error among the codes", {"\033S\r4,25\r0\rM\n"}, "status[4 25] online error tray=2"},
    {"an unlisted code is an error", {"\033S\r1\r0\rM\n"}, "status[1] online error tray=2"},
    {"a code above 65535 is classed by its low 16 bits",
     {"\033S\r65557\r0\rM\n\033S\r65568\r0\rM\n"},
     "status[32] online error tray=2"},
    {"the error flag goes again",
     {"\033S\r25\r0\rM\n", "\033S\r18\r0\rM\n"},
     "status[18] online tray=2"},
    {"a code that is no number, a trailing comma",
     {"\033S\rx,5,\r0\r1\n"},
     "status[0 5 0] online tray=3"},
    {"the end marker ends a status block too",
     {"\033S\r0\r0\r1\r2\033 \033L\r1\r1\n"},
     "status[0] online tray=3 bin=2 bins[1:1]"},
    {"no field at all", {"\033S\r4\r1\r1\n", "\033S\n"}, "status(0)[0] online"},
    {"codes over 63 bytes: the later fields are read from inside them",
     {"\033S\r" + std::string(150, '4') + "\r0\r1\r1\n"},
     "bin=255"},
    {"a status block of 256 bytes",
     {"\033S\r4\r0\r1\r" + std::string(246, '1') + "\n\033L\r1\r1\n"},
     "status[4] online tray=3 bin=255 bins[1:1]"},
    {"a status block of 257 bytes takes 256: the walk ends",
     {"\033S\r4\r0\r1\r" + std::string(248, '1') + "\n\033L\r1\r1\n"},
     "status[4] online tray=3 bin=255"},

    {"paper sizes", {"\033T\r1\r5\r2\r-1\n"}, "trays[3:7:0 4:1:0]"},
    {"levels go to the trays that are there",
     {"\033T\r1\r5\r2\r-1\n\033Z\r2\r0\r1\r50\n"},
     "trays[3:7:50 4:1:0]"},
    {"another number of entries builds the list anew",
     {"\033T\r1\r5\r2\r-1\n", "\033Z\r1\r50\n"},
     "trays[3:0:50]"},
    {"a new id takes the head of a reused list",
     {"\033T\r1\r5\r2\r6\n", "\033T\r3\r8\r1\r9\n"},
     "trays[5:10:0 3:11:0]"},
    {"a repeated id updates its node", {"\033T\r1\r5\r1\r6\n"}, "trays[3:8:0 0:0:0]"},
    {"unknown tray and size", {"\033T\rQ\r999\n"}, "trays[0:0:0]"},
    {"a half entry too many is dropped", {"\033T\r1\r5\r2\n"}, "trays[3:7:0]"},
    {"no entries after some", {"\033T\r1\r5\n\033T\n"}, "trays(0)[0:0:0]"},
    {"a CR before the LF opens an entry without id and value",
     {"\033L\r1\r1\r2\r2\n\033L\r\n\033T\r9\r5\r\n"},
     "trays[0:0:0] bins(0)[255:0]"},
    {"an id of six characters and more", {"\033L\r1234567\r1\n"}, "bins[255:0]"},
    {"a zero byte among the entries ends them", {"\033T\r1\r5\r\0\r6\n"s}, "trays[3:7:0 0:0:0]"},
    {"bins", {"\033L\r16\r1\r15\r2\n"}, "bins[255:1 15:2]"},
    {"a number keeps its low 16 bits", {"\033Z\r1\r65537\n"}, "trays[3:0:1]"},
    {"a block of 255 bytes",
     {"\033L\r1\r" + std::string(249, '7') + "\n\033T\r1\r5\n"},
     "trays[3:7:0] bins[1:56881]"},
    {"a block of 256 bytes takes 255: the walk ends",
     {"\033L\r1\r" + std::string(250, '7') + "\n\033T\r1\r5\n"},
     "bins[1:56881]"},

    {"two version texts", {"\033V\rSYS\r1.01\rNWC\r2.00\n"}, "version1='1.01' version2='2.00'"},
    {"three version texts",
     {"\033V\rSYS\r1.01\rNWC\r2.00\rNPS\r3.1415\n"},
     "version1='1.01' version2='2.00' version3='3.1415'"},
    {"a version text that the reply lacks stays",
     {"\033V\rSYS\r1.01\rNWC\r2.00\rNPS\r3.00\n", "\033V\rSYS\r4\rNWC\r5\n"},
     "version1='4' version2='5' version3='3.00'"},
    {"a version text is cut at six characters, its rest is the next label",
     {"\033V\rSYS\r1.23456789\r2.00\rNPS\r3.00000\n"},
     "version1='1.2345' version2='2.00' version3='3.0000'"},
    {"the third version text ends with the block alone, a zero byte before it ends all",
     {"\033V\ra\r1\rb\r2\rc\r3\r4\n", "\033V\ra\r5\rb\r6\r\0c\r7\n"s},
     "version1='5' version2='6' version3='3\r4'"},
    {"versions without fields", {"\033V\n"}, "version1='' version2=''"},
    {"a number", {"\033M\r64\n"}, "number=64"},
    {"a number is cut at fourteen digits", {"\033M\r000000000000123\n"}, "number=12"},
    {"no number", {"\033M\r64\n\033M\n"}, ""},
    {"a language", {"\033E\rNDL\n"}, "language=1"},
    {"a language is cut at three characters", {"\033E\rGL2X\n"}, "language=12"},
    {"an unknown language", {"\033E\rNDL\n", "\033E\rndl\n"}, ""},
    {"an unlisted font is dropped", {"\033F\rGOTHIC\rSERIF\rKAISHO\n"}, "fonts[13 19]"},
    {"an unlisted font at the head", {"\033F\rSERIF\rGOTHIC\n"}, "fonts[13]"},
    {"a zero byte ends a name",
     {"\033F\rKAISHO\0X\rGOTHIC\n\033T\r1\0\r5\0X\n"s},
     "fonts[19 13] trays[3:7:0]"},
    {"no fonts", {"\033F\rGOTHIC\n", "\033F\r\n"}, ""},
    {"a font name is cut at 126 characters",
     {"\033F\rGOTHIC\r" + std::string(127, 'X') + "KAISHO\n"},
     "fonts[13 19]"},

    {"option 4 absent", {"\033A\r0\n"}, ""},
    {"option 4 twice", {"\033A\r1\n\033A\r1\n"}, "options[4:0]"},
    {"the duplex unit after option 4", {"\033A\r1\n\033C\rx\n"}, "options[4:0 1:0]"},
    {"a code per bit of the value", {"\033D\rF:3\n"}, "options[11:0 12:0]"},
    {"the value of the duplex unit, its low half",
     {"\033D\rD:\x31\x32\x33\x34\n"},
     "options[1:12849]"},
    {"value bytes past the fourth are ignored",
     {"\033D\rD:\x31\x32\x33\x34\x35\rA:0\n"},
     "options[1:12849 4:0]"},
    {"a value that selects nothing leaves an uncounted node", {"\033D\rO: \n"}, "options(0)[0:0]"},
    {"an uncounted node among others", {"\033D\rF:3\rO: \rH:0\n"}, "options(3)[11:0 12:0 0:0 3:0]"},
    {"uncounted nodes are replaced by the first answer",
     {"\033D\rO: \rF: \n\033A\r1\n"},
     "options[4:0]"},
    {"every tray bit",
     {"\033D\rT:\xFF\n"},
     "options[16:0 17:0 104:0 103:0 101:0 102:0 105:0 106:0]"},
    {"an unknown letter is skipped", {"\033D\rX:1\rB:\x02\n"}, "options[15:0]"},
    {"the list is built anew, later answers add to it",
     {"\033A\r1\n\033D\rH:1\n\033C\r1\n"},
     "options[3:0 1:0]"},
    {"an entry of a letter only", {"\033D\rM\n"}, "options[3:0]"},
    {"options without a field", {"\033D\rH:1\n\033D\n"}, ""},
    {"options without an end in 255 bytes: the last one belongs to a value",
     {"\033D\r" + std::string(248, 'x') + "\rD:1\n"},
     "options[1:49]"},
    {"no options", {"\033A\r1\n", "\033D\r\n"}, ""},
};

}  // namespace

TEST_CASE("a reply updates the record block by block") {
  for (const ReplyCase& row : kReplies) {
    CAPTURE(row.why);
    test::Record record;
    for (const std::string& reply : row.replies)
      CHECK(test::Parse(record, reply) == 1);
    CHECK(test::Describe(record) == row.expected);
  }
}

TEST_CASE("a reply that is cut off says what its whole blocks say, and nothing past it is read") {
  for (const ReplyCase& row : kReplies) {
    for (const std::string& reply : row.replies) {
      test::ForEveryCut(reply, [&](test::GuardedBytes& cut) {
        if (cut.size() == 0) return;  // a reply has a readable byte
        CAPTURE(row.why);
        CAPTURE(cut.size());
        const std::string_view whole = test::WholeBlocks({cut.data(), size_t(cut.size())});
        for (const char* earlier :
             {"", "\033S\r1,2,3\r1\r5\r7\n\033T\r1\r5\r2\r5\n\033L\r1\r5\n"}) {
          test::Record record, expected;
          test::Parse(record, earlier);
          test::Parse(expected, earlier);
          CHECK(SetPrnInfoExFromReadbackCmd(&record, cut.data(), cut.size()) == 1);
          test::Parse(expected, whole);
          CHECK(test::Describe(record) == test::Describe(expected));
        }
      });
    }
  }
}

TEST_CASE("the walk goes on after what is read of an over-long block") {
  test::Record record;
  test::Parse(record, "\033L\r1\r" + std::string(250, '7') + "\033T\r1\r5\n");
  CHECK(test::Describe(record) == "trays[3:7:0] bins[1:56881]");
}

TEST_CASE("a list of the same length keeps its nodes") {
  test::Record record;
  test::Parse(record, "\033S\r4,5\r0\r1\n\033T\r1\r5\r2\r5\n");
  const StatusNode* status = record.statusList;
  const TrayNode* tray = record.trayList;
  test::Parse(record, "\033S\r6,8\r0\r1\n\033Z\r1\r5\r2\r5\n");
  CHECK(record.statusList == status);
  CHECK(record.trayList == tray);
  CHECK(test::Values(record.statusList, &StatusNode::code) == std::vector<uint32_t>{6, 8});
}

TEST_CASE("counts that a caller made up never lead past a chain") {
  for (uint32_t count : {1u, 2u, 9u, 0xFFFFFFFFu}) {
    CAPTURE(count);
    test::Record record;
    test::Parse(record, "\033S\r4\r0\r1\n\033T\r1\r5\n\033L\r1\r5\n");
    record.statusCount = record.trayCount = record.binCount = count;
    test::Parse(record, "\033S\r6,8\r0\r1\n\033T\r1\r5\r2\r5\n\033L\r1\r5\r2\r5\n");
    const size_t nodes = count == 2 ? 1 : 2;
    CHECK(test::Values(record.statusList, &StatusNode::code).size() == nodes);
    CHECK(test::Values(record.trayList, &TrayNode::trayId).size() == nodes);
    CHECK(test::Values(record.binList, &BinNode::binId).size() == nodes);
  }
}

TEST_CASE("a version text from the print manager has room for the reply's") {
  const PMModelInfo model = {nullptr, "1", STM_ABSENT};
  PMPrnInfo manager{};
  manager.modelInfo = &model;
  test::Record record;
  REQUIRE(PatSetPMPrnInfoToPrnInfo(&record, &manager, GroupModelInfo) == 1);
  const std::string before = record.versionText1;
  test::Parse(record, "\033V\rA\r3.1415\rB\r2.7182\n");
  CHECK(before == "1");
  CHECK(record.versionText1 == std::string("3.1415"));
}

TEST_CASE("a call that cannot walk leaves the record alone") {
  test::Record record;
  test::Parse(record, kReplies[0].replies[0]);
  const std::string before = test::Describe(record);
  CHECK(test::Parse(record, " \033L\r1\r1\n") == 0);
  for (int32_t length : {0, -1, INT32_MIN}) {
    // The first byte decides even then, and no byte after it is read.
    test::GuardedBytes escape("\033");
    test::GuardedBytes other("L");
    CHECK(SetPrnInfoExFromReadbackCmd(&record, escape.data(), length) == 1);
    CHECK(SetPrnInfoExFromReadbackCmd(&record, "\033L\r1\r1\n", length) == 1);
    CHECK(SetPrnInfoExFromReadbackCmd(&record, other.data(), length) == 0);
    CHECK(SetPrnInfoExFromReadbackCmd(&record, "", length) == 0);
  }
  CHECK(SetPrnInfoExFromReadbackCmd(&record, nullptr, 9) == 0);
  CHECK(SetPrnInfoExFromReadbackCmd(nullptr, "\033L\r1\r1\n", 7) == 0);
  CHECK(test::Describe(record) == before);
}
