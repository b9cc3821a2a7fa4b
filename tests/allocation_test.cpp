// Every call when memory runs out, and ten thousand times over.
#include "allocation_faults.h"
#include "describe.h"
#include "doctest/doctest.h"
#include "print_manager.h"
#include "support.h"

namespace {

// What the calls work on. A call that fills neither record leaves them alone.
struct Work {
  test::Record list;
  PrnInfo flat{};
};

constexpr std::string_view kFirstReply =
    "\033S\r4\r0\r1\n\033T\r1\r5\n\033L\r1\r0\n\033V\rA\r1\rB\r2\n\033\x46\rGOTHIC\n\033\x44\rO: "
    "\n";
constexpr std::string_view kReply =
    "\033S\r4,5,"
    "25\r0\r1\r1\n\033T\r1\r5\r2\r6\n\033L\r1\r0\r2\r1\n\033V\rA\r1\rB\r2\rC\r3\n\033M\r7\n"
    "\033\x46\rGOTHIC\rKAISHO\n\033\x44\rF:3\rO:\x03\rD:1\n\033\x41\r1\n\033\x43\r1\n";
// More nodes than a flat record's temporary one has room for, and lists told twice.
const std::string kLongReply =
    "\033S\r4,5,25,26,28,36,37\r0\r1\r1\n\033\x46\rGOTHIC\rKAISHO\n\033\x46\rKAISHO\n"
    "\033\x44\rF:3\rO:\x03\n\033\x44\rD:1\n\033S\r4,5,25\r0\r1\r1\n\033\x41\r1\n"
    "\033L" +
    [] {
      std::string bins;
      for (int bin = 0; bin < 60; ++bin)
        bins += "\r1\r0";
      return bins + '\n';
    }() +
    "\033T\r1\r5\r2\r6\n\033V\rA\r1\rB\r2\n\033\x46\rGOTHIC\rMARUGOTHIC\rKAISHO\n"
    "\033\x44\rT:\xFF\n";
constexpr std::string_view kFirstDeviceId = "MFG:A;CMD:NDL;MDL:B;DES:C;";
constexpr std::string_view kDeviceId = "MFG:ORLEX;CMD:NDL,NPS;MDL:ZENTA C210;DES:ZENTA C210;";

// Every group of the print manager's record. Papers and devices are known ones: with others a node
// keeps what it held, which a fault may have taken.
struct Manager : test::PrintManager {
  Manager() {
    SetStatus(0x00040082);
    SetModel("ZENTA C210", "1.02", 7);
    AddTrays({test::Tray("Tray1", "A4"), test::Tray("Tray2", "A3"), test::Tray("LCT", "B5")}, 2);
    AddBins({{"Tray1", 0, nullptr}, {"Finisher", 1, nullptr}}, 1);
    AddEmulations({{"WXDL-C", "2.0", nullptr}, {"OrlexScript2", "3.0", nullptr}}, 1);
    AddFonts({{"GOTHIC"}, {"KAISHO"}, {"GYOUSHO"}});
    AddOptions({163, 164});
    AddStatuses({4, 5});
  }
};

struct CallRow {
  const char* name;
  uint32_t (*call)(Work& work);
};

// One row for each exported call that may allocate; a call repeated on its own result must leave
// that result as it is.
const CallRow kCalls[] = {
    {"SetPrnInfoExFromReadbackCmd",
     [](Work& work) {
       return SetPrnInfoExFromReadbackCmd(&work.list, kReply.data(), int32_t(kReply.size()));
     }},
    {"SetPrnInfoFromReadbackCmd",
     [](Work& work) {
       return SetPrnInfoFromReadbackCmd(&work.flat, kReply.data(), int32_t(kReply.size()));
     }},
    {"SetPrnInfoFromReadbackCmd, a long reply",
     [](Work& work) {
       return SetPrnInfoFromReadbackCmd(&work.flat, kLongReply.data(), int32_t(kLongReply.size()));
     }},
    {"SetModelInfoExFromDeviceID",
     [](Work& work) {
       return SetModelInfoExFromDeviceID(&work.list, kDeviceId.data(), uint32_t(kDeviceId.size()));
     }},
    {"SetModelInfoFromDeviceID",
     [](Work& work) {
       return SetModelInfoFromDeviceID(&work.flat, kDeviceId.data(), uint32_t(kDeviceId.size()));
     }},
    {"PatSetPMPrnInfoToPrnInfo",
     [](Work& work) {
       static const Manager manager;
       return PatSetPMPrnInfoToPrnInfo(&work.list, &manager.record, ~0u);
     }},
};

void Fill(Work& work) {
  SetPrnInfoExFromReadbackCmd(&work.list, kFirstReply.data(), int32_t(kFirstReply.size()));
  SetModelInfoExFromDeviceID(&work.list, kFirstDeviceId.data(), uint32_t(kFirstDeviceId.size()));
  SetPrnInfoFromReadbackCmd(&work.flat, kFirstReply.data(), int32_t(kFirstReply.size()));
  SetModelInfoFromDeviceID(&work.flat, kFirstDeviceId.data(), uint32_t(kFirstDeviceId.size()));
}

void Leave(Work&) {}

bool SameFlat(const Work& one, const Work& other) {
  return std::memcmp(&one.flat, &other.flat, sizeof one.flat) == 0;
}

// Lets an allocation of the call fail. Then the record can be read, another call without a fault
// gives what it gives otherwise, and nothing is left behind. Result: whether the call got that far.
bool CheckFault(const CallRow& row, void (*prepare)(Work&), uint32_t number, test::Faults faults) {
  const int32_t before = test::LiveBlocks();
  bool failed;
  {
    Work work, sound;
    prepare(work);
    prepare(sound);
    row.call(sound);
    test::FailAllocation(number, faults);
    row.call(work);
    failed = test::EndFaults();
    CHECK(test::Describe(work.list).size() < 1000);  // the chains end
    row.call(work);
    CHECK(test::Describe(work.list) == test::Describe(sound.list));
    CHECK(SameFlat(work, sound));
  }
  CHECK(test::LiveBlocks() == before);
  return failed;
}

}  // namespace

TEST_CASE("any allocation may fail: nothing leaks, and the next call makes up for it") {
  for (const CallRow& row : kCalls) {
    for (auto* prepare : {Leave, Fill}) {
      for (test::Faults faults : {test::Faults::One, test::Faults::AllFromThere}) {
        CAPTURE(row.name);
        CAPTURE((prepare == Fill));
        uint32_t number = 1;
        for (bool failed = true; failed; ++number) {
          CAPTURE(number);
          failed = CheckFault(row, prepare, number, faults);
        }
        CHECK(number > 2);  // the faults reach the library
      }
    }
  }
}

TEST_CASE("a flat record without memory for its conversion is refused and left alone") {
  for (const CallRow& row : {kCalls[1], kCalls[2], kCalls[4]}) {
    Work work, before;
    Fill(work);
    Fill(before);
    test::FailAllocation(1, test::Faults::One);
    CHECK(row.call(work) == 0);
    CHECK(test::EndFaults());
    CHECK(SameFlat(work, before));
  }
}

TEST_CASE("ten thousand calls leave nothing behind") {
  for (const CallRow& row : kCalls) {
    CAPTURE(row.name);
    const int32_t before = test::LiveBlocks();
    {
      Work work;
      row.call(work);
      const int32_t held = test::LiveBlocks();
      for (int i = 0; i < 10000; ++i)
        row.call(work);
      CHECK(test::LiveBlocks() == held);
    }
    CHECK(test::LiveBlocks() == before);
  }
}
