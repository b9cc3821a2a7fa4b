// The pieces that need no connection: frames, scenarios, addresses, escapes.
#include "doctest/doctest.h"
#include "simulator/scenario.h"
#include "simulator/simulated_printer.h"
#include "simulator/simulated_reply.h"
#include "snapshot/device_id.h"
#include "wire/reply_frame.h"
#include "wire/transport.h"
#include "words/safe_text.h"

using namespace std::string_literals;
using namespace std::string_view_literals;

TEST_CASE("a reply ends at its end marker and nowhere else") {
  struct Row {
    const char* why;
    std::string bytes;
    size_t length;  // 0: no end
  };
  const Row rows[] = {
      {"the marker alone", "\033 ", 2},
      {"a marker cut in half", "\033", 0},
      {"a status block ended by LF", "\033S\r0\n\033 ", 7},
      {"a status block ended by the marker", "\033S\r0\r0\r1\033 ", 10},
      {"ESC and space as raw option bits", "\033D\rO:\033 \n\033 ", 10},
      {"the same bytes where the frame is lost", "?\033 ", 3},
      {"an ESC before the marker's ESC", "\033S\r\033\033 x", 6},
      {"a second reply after the first", "\033S\r0\n\033 \033S\r4\n\033 ", 7},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    stmon::ReplyScanner at_once;
    CHECK(stmon::ScanReply(at_once, row.bytes) == (row.length != 0));
    CHECK(at_once.length == row.length);
    stmon::ReplyScanner in_drops;
    for (size_t size = 1; size <= row.bytes.size(); ++size)
      stmon::ScanReply(in_drops, std::string_view(row.bytes).substr(0, size));
    CHECK(in_drops.length == row.length);
  }
}

TEST_CASE("blocks are told from what is none") {
  const auto blocks = stmon::SplitBlocks("\033S\r0\n\033T\r1\r6\njunk"sv);
  REQUIRE(blocks.size() == 3);
  CHECK(blocks[0].letter == 'S');
  CHECK(blocks[1].bytes == "\033T\r1\r6\n"sv);
  CHECK(blocks[1].whole);
  CHECK_FALSE(blocks[2].whole);
  CHECK(blocks[2].letter == '\0');
  const auto cut = stmon::SplitBlocks("\033S\r0\r0"sv);
  REQUIRE(cut.size() == 1);
  CHECK_FALSE(cut[0].whole);
}

TEST_CASE("addresses of printers") {
  struct Row {
    std::string text;
    bool good;
    std::string host;
    uint16_t port;
  };
  const Row rows[] = {
      {"printer", true, "printer", 9100},
      {"10.0.0.7:515", true, "10.0.0.7", 515},
      {"fe80::1", true, "fe80::1", 9100},
      {"[fe80::1]:515", true, "fe80::1", 515},
      {"[::1]", true, "::1", 9100},
      {"", false, "", 0},
      {"printer:", false, "", 0},
      {"printer:0", false, "", 0},
      {"printer:65536", false, "", 0},
      {"printer:91x", false, "", 0},
      {":9100", false, "", 0},
      {"[::1", false, "", 0},
      {"[::1]9100", false, "", 0},
      {"http://printer", false, "", 0},
      {"two words", false, "", 0},
      {std::string(300, 'a'), false, "", 0},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    stmon::Target target;
    REQUIRE(stmon::ParseTarget(row.text, target) == row.good);
    if (!row.good) continue;
    CHECK(target.host == row.host);
    CHECK(target.port == row.port);
    stmon::Target again;
    CHECK(stmon::ParseTarget(stmon::TargetText(target), again));
    CHECK(again.host == target.host);
    CHECK(again.port == target.port);
  }
}

TEST_CASE("a scenario says in which line it is wrong") {
  struct Row {
    const char* text;
    const char* wrong;  // how the message begins; empty: none
  };
  const Row rows[] = {
      {"", ""},
      {"# only a comment\n\n  \t\r\n", ""},
      {"status 32,68 # paper and toner\r\nonline no", ""},
      {"status 32,\n", "line 1: expected status"},
      {"status 1000000\n", "line 1: expected status"},
      {"online\n", "line 1: expected online"},
      {"online yes\nonline maybe\n", "line 2: expected online"},
      {"tray 6 6 50\n", "line 1: expected tray"},
      {"tray 1 6\n", "line 1: expected tray"},
      {"bin 16 0\n", "line 1: expected bin"},
      {"version A 1\nversion B 2\nversion C 3\nversion D 4\n", "line 4: expected version"},
      {"option O 10\n", "line 1: expected option"},
      {"manner cut\n", "line 1: expected manner"},
      {"manner whole 3\n", "line 1: expected manner"},
      {"repeat 0\n", "line 1: expected repeat"},
      {"next\nnext\ncolour blue\n", "line 3: unknown word 'colour'"},
      {"\033[31m\n", "line 1: unknown word '\\x1B[31m'"},
  };
  for (const Row& row : rows) {
    CAPTURE(row.text);
    stmon::Scenario scenario;
    const std::string wrong = stmon::ReadScenario(row.text, scenario);
    CHECK(wrong.substr(0, std::string_view(row.wrong).size()) == row.wrong);
    CHECK(wrong.empty() == (row.wrong[0] == '\0'));
  }
}

TEST_CASE("every built-in scenario can be read") {
  for (const stmon::NamedScenario* row = stmon::kNamedScenarios; row->name; ++row) {
    CAPTURE(row->name);
    stmon::Scenario scenario;
    CHECK(stmon::LoadScenario(row->name, scenario) == "");
    CHECK(scenario.states.size() >= 1);
  }
}

TEST_CASE("a later state starts as a copy and replaces whole lists") {
  stmon::Scenario scenario;
  REQUIRE(stmon::ReadScenario("repeat 3\nstatus 5\ntray 1 6 50\ntray 2 4 50\nnext\ntray 3 8 1\n",
                              scenario) == "");
  REQUIRE(scenario.states.size() == 2);
  CHECK(scenario.states[0].trays.size() == 2);
  CHECK(scenario.states[0].repeat == 3);
  CHECK(scenario.states[1].status == "5");
  CHECK(scenario.states[1].trays.size() == 1);
  CHECK(scenario.states[1].repeat == 1);
}

TEST_CASE("the simulated printer answers what was asked, and its status always") {
  stmon::PrinterState state;
  CHECK(stmon::RequestedBlocks("\x12\x14\x12\033T\n\033Z\n\033 "sv) == "TZ");
  CHECK(stmon::BuildReply(state, "") == "\033S\r0\r0\r1\r1\n\033 ");
  state.online = false;
  state.bin = "";
  CHECK(stmon::BuildReply(state, "HBT") == "\033S\r0\r1\r1\n\033T\r1\r6\r2\r2\rT\r6\n\033 ");
}

TEST_CASE("nothing that controls a terminal leaves") {
  CHECK(stmon::EscapeBytes("a\\b\033\xFF\n"sv) == "a\\\\b\\x1B\\xFF\\x0A");
  CHECK(stmon::CleanUtf8("\033[2J\xC2\x9B"
                         "31m\xE2\x80\xAEok\nß\xFF"sv) ==
        "\xEF\xBF\xBD[2J\xEF\xBF\xBD"
        "31m\xEF\xBF\xBDok\nß\xEF\xBF\xBD");
  CHECK(stmon::DisplayWidth("Zásobník") == 8);
  CHECK(stmon::DisplayWidth("大量ﾄﾚｲ") == 7);
}

TEST_CASE("a Device ID in any form becomes the one that the library reads") {
  struct Row {
    const char* why;
    const char* text;
    const char* plain;
  };
  const Row rows[] = {
      {"as it should be", "MFG:A;CMD:X,Y;MDL:B;DES:C;", "MFG:A;CMD:X,Y;MDL:B;DES:C;"},
      {"without the last end", "MFG:A;MDL:X1", "MFG:A;MDL:X1;"},
      {"long keys", "MANUFACTURER:A;COMMAND SET:X;MODEL:B;DESCRIPTION:C",
       "MFG:A;CMD:X;MDL:B;DES:C;"},
      {"a long key inside a value", "DES:MODEL:B;", "DES:MODEL:B;"},
      {"blanks between fields and a line feed", " MFG:A ; MDL:two words;\r\n",
       "MFG:A;MDL:two words;"},
      {"a key of no interest", "CLASS:PRINTER;MODEL:B", "CLASS:PRINTER;MDL:B;"},
      {"a key alone", "MODEL:", "MDL:;"},
      {"nothing", " ;; ", ""},
  };
  for (const Row& row : rows) {
    CAPTURE(row.why);
    CHECK(stmon::PlainDeviceId(row.text) == row.plain);
  }
}
