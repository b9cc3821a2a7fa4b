// The records of many printers: time and memory a printer; and long lists: time an entry.
#include <algorithm>
#include <array>
#include <ctime>
#include <memory>

#ifdef __linux__
#include <malloc.h>
#endif

#include "bench.h"
#include "sample.h"
#include "stmdata/stmdata.h"

namespace {

using namespace bench;

// Bytes that the process has allocated; 0 where the system does not tell.
uint64_t AllocatedBytes() {
#ifdef __linux__
  const struct mallinfo2 info = mallinfo2();
  return uint64_t{info.uordblks} + info.hblkhd;
#else
  return 0;
#endif
}

// ---- Many printers ------------------------------------------------------------------------------

// Half of what a 32-bit process can address: the other half is left to fragments and to the caller.
constexpr uint64_t kMostBytesAtOnce = uint64_t{2} << 30;

// Printers differ in their status, as a building full of them does.
constexpr std::array kStatuses = {"0", "17", "18", "32", "36", "46", "69", "100"};
using Replies = std::array<std::string, kStatuses.size()>;

std::string TypicalReply(std::string_view status) {
  return std::string(kReplyHead)
      .append(status)
      .append(
          "\r0\r1\r1\n\033T\rT\r6\r1\r6\r2\r22\n\033Z\rT\r50\r1\r100\r2\r75\n\033L\r1\r0\r2\r1\n"
          "\033 ");
}

// As many statuses as a reply can tell: its field of codes has 64 characters.
std::string CrowdedReply(std::string_view status) {
  std::string statuses(status);
  while (statuses.size() + 2 < 64)
    statuses += ",9";
  return FullReply(statuses);
}

Replies MakeReplies(std::string (*make)(std::string_view)) {
  Replies replies;
  std::transform(kStatuses.begin(), kStatuses.end(), replies.begin(), make);
  return replies;
}

void AskLine(const PrnInfoEx& record) {
  StatusRow row;
  char line[512];
  PatGetPrinterStatus_Ex(&record, &row);
  PatGetSimpleString_Ex(&record, line, sizeof line);
  Use(line);
}
void AskLine(const PrnInfo& record) {
  StatusRow row;
  char line[512];
  PatGetPrinterStatus(&record, &row);
  PatGetSimpleString(&record, line, sizeof line);
  Use(line);
}

void Compare(const PrnInfoEx& record, const PrnInfoEx& previous) {
  uint32_t equal = 0;
  PatCmpPrnInfoEX(&record, &previous, ~0u, &equal);
  Use(equal);
}
// There is no comparison of flat records: a caller that wants one compares the bytes.
void Compare(const PrnInfo& record, const PrnInfo& previous) {
  Use(std::memcmp(&record, &previous, sizeof record));
}

void ReleaseBlocks(PrnInfoEx& record) {
  ReleasePrnInfoEx(&record);
}
void ReleaseBlocks(PrnInfo&) {}

// Steps last seconds here, and no busy machine waits so long: the processor's time is taken, not
// the wall's, where the system tells it.
template <class Work>
double ProcessorNanoseconds(Work work) {
  const std::clock_t start = std::clock();
  work();
  return double(std::clock() - start) * (1e9 / CLOCKS_PER_SEC);
}

// Nanoseconds that each step took for all printers.
struct Steps {
  double fill, again, ask, compare, release;
};

template <class Record>
void RunBatch(uint32_t count, const Replies& replies, std::array<Record, kStatuses.size()>& polled,
              Steps& steps, uint64_t& bytes) {
  const auto kind = [](uint32_t i) { return i % kStatuses.size(); };
  const uint64_t before = AllocatedBytes();
  const std::unique_ptr<Record[]> records(new Record[count]());
  steps.fill += ProcessorNanoseconds([&] {
    for (uint32_t i = 0; i < count; ++i)
      Parse(records[i], replies[kind(i)]);
  });
  bytes += AllocatedBytes() - before;
  steps.again += ProcessorNanoseconds([&] {
    for (uint32_t i = 0; i < count; ++i)
      Parse(records[i], replies[kind(i)]);
  });
  steps.ask += ProcessorNanoseconds([&] {
    for (uint32_t i = 0; i < count; ++i)
      AskLine(records[i]);
  });
  steps.compare += ProcessorNanoseconds([&] {
    for (uint32_t i = 0; i < count; ++i)
      Compare(records[i], polled[kind(i)]);
  });
  steps.release += ProcessorNanoseconds([&] {
    for (uint32_t i = 0; i < count; ++i)
      ReleaseBlocks(records[i]);
  });
}

double MedianOf(const std::vector<Steps>& rounds, double Steps::*step, uint32_t count) {
  std::vector<double> values;
  for (const Steps& round : rounds)
    values.push_back(round.*step / count);
  return Median(values);
}

// One line: `count` printers, in as many batches as the address space asks for, each released
// before the next.
template <class Record>
void ScaleRow(const char* name, uint32_t count, int roundCount, const Replies& replies) {
  std::array<Record, kStatuses.size()> polled{};
  for (uint32_t i = 0; i < polled.size(); ++i)
    Parse(polled[i], replies[i]);
  Steps unused{};
  uint64_t sample = 0;
  constexpr uint32_t kSample = 64;
  RunBatch<Record>(kSample, replies, polled, unused, sample);
  const uint64_t each = std::max<uint64_t>(sample / kSample, sizeof(Record));
  const auto batches =
      static_cast<uint32_t>((each * count + kMostBytesAtOnce - 1) / kMostBytesAtOnce);
  const uint32_t atOnce = (count + batches - 1) / batches;

  uint64_t bytes = 0;
  std::vector<Steps> rounds;
  for (int round = 0; round < roundCount; ++round) {
    Steps steps{};
    bytes = 0;
    for (uint32_t done = 0; done < count; done += atOnce)
      RunBatch<Record>(std::min(atOnce, count - done), replies, polled, steps, bytes);
    rounds.push_back(steps);
  }
  std::printf("%-22s %8u %8u %7.0f %7.0f %7.0f %7.0f %7.0f %8.0f %10.0f\n", name, count, atOnce,
              MedianOf(rounds, &Steps::fill, count), MedianOf(rounds, &Steps::again, count),
              MedianOf(rounds, &Steps::ask, count), MedianOf(rounds, &Steps::compare, count),
              MedianOf(rounds, &Steps::release, count), double(bytes) / count,
              4294967296.0 * count / double(std::max<uint64_t>(bytes, 1)));
  for (Record& record : polled)
    ReleaseBlocks(record);
}

void BenchManyPrinters() {
  constexpr uint32_t kMany = 10'000;
  constexpr uint32_t kMost = 1'000'000;
  const Replies typical = MakeReplies(TypicalReply);
  const Replies full = MakeReplies(FullReply);
  const Replies crowded = MakeReplies(CrowdedReply);
  std::printf("\nnanoseconds and bytes a printer\n");
  std::printf("%-22s %8s %8s %7s %7s %7s %7s %7s %8s %10s\n", "record", "printers", "at once",
              "fill", "again", "ask", "compare", "release", "bytes", "fit 4 GiB");
  ScaleRow<PrnInfoEx>("list, typical", kMany, 15, typical);
  ScaleRow<PrnInfoEx>("list, typical", kMost, 3, typical);
  ScaleRow<PrnInfoEx>("list, every block", kMany, 15, full);
  ScaleRow<PrnInfoEx>("list, every block", kMost, 3, full);
  ScaleRow<PrnInfoEx>("list, most statuses", kMany, 5, crowded);
  ScaleRow<PrnInfoEx>("list, most statuses", kMost, 1, crowded);
  ScaleRow<PrnInfo>("flat, every block", kMany, 15, full);
  ScaleRow<PrnInfo>("flat, every block", kMost, 3, full);
}

// ---- Long lists ---------------------------------------------------------------------------------

// A reply tells 30 statuses and more in its 64 characters of codes, and 60 trays and more in the
// 255 bytes of a block. The print manager's lists have no limit.
constexpr uint32_t kLengths[] = {1, 4, 16, 30, 60, 250, 1000, 4000};
constexpr uint32_t kMostInField = 30;
constexpr uint32_t kMostInBlock = 60;

template <class Work>
double MedianNanoseconds(Work work) {
  const uint32_t calls = CallsPerBatch(work);
  std::vector<double> spent;
  for (int i = 0; i < 51; ++i)
    spent.push_back(BatchNanoseconds(calls, work));
  return Median(spent);
}

// A record as the print manager tells it: `count` trays and statuses, nothing else. The first
// status is graver than the others, or their tie would end every choice among them early.
struct LongLists {
  explicit LongLists(uint32_t count)
      : trays(count, {"Tray 1", 0x400, 0, "A4", nullptr, 210, 297}), statuses(count, {0, 9}) {
    statuses[0].code = 99;
    for (uint32_t i = 0; i < count; ++i) {
      trayItems.push_back(&trays[i]);
      statusItems.push_back(&statuses[i]);
    }
    trayGroup = {count, trayItems.data(), 1};
    statusGroup = {count, statusItems.data(), STM_ABSENT};
    manager.inputTrayInfo = &trayGroup;
    manager.statusListInfo = &statusGroup;
  }
  std::vector<PMInputTray> trays;
  std::vector<PMStatusItem> statuses;
  std::vector<const void*> trayItems, statusItems;
  PMItemGroup trayGroup, statusGroup;
  PMPrnInfo manager{};
};

std::string Entries(const char* head, const char* entry, uint32_t count, const char* end) {
  std::string block = head;
  while (count-- > 0)
    block += entry;
  return block + end;
}

template <class Measure>
void GrowthRow(const char* name, uint32_t most, Measure measure) {
  std::printf("%-40s", name);
  for (uint32_t count : kLengths) {
    if (count <= most)
      std::printf(" %7.1f", measure(count) / count);
    else
      std::printf(" %7s", "-");
  }
  std::printf("\n");
}

// Replies of one list, parsed again and again into one record.
template <class Record>
double ParseAgain(const std::string& reply) {
  Record record{};
  const double ns = MedianNanoseconds([&] { Parse(record, reply); });
  ReleaseBlocks(record);
  return ns;
}

// A question about a record with long lists of one group.
template <class Question>
double AskLong(uint32_t count, uint32_t group, Question question) {
  const LongLists lists(count);
  PrnInfoEx record{}, same{};
  for (PrnInfoEx* each : {&record, &same})
    PatSetPMPrnInfoToPrnInfo(each, &lists.manager, group);
  record.online = same.online = 1;
  const double ns = MedianNanoseconds([&] { question(lists, record, same); });
  ReleasePrnInfoEx(&record);
  ReleasePrnInfoEx(&same);
  return ns;
}

void BenchLongLists() {
  constexpr uint32_t kAny = ~0u;
  std::printf("\n%-40s", "nanoseconds an entry, by list length");
  for (uint32_t count : kLengths)
    std::printf(" %7u", count);
  std::printf("\n");

  GrowthRow("reply, statuses", kMostInField, [](uint32_t count) {
    return ParseAgain<PrnInfoEx>(Entries("\033S\r", "9,", count - 1, "9\r0\r1\r1\n\033 "));
  });
  GrowthRow("reply, statuses, flat record", kMostInField, [](uint32_t count) {
    return ParseAgain<PrnInfo>(Entries("\033S\r", "9,", count - 1, "9\r0\r1\r1\n\033 "));
  });
  GrowthRow("reply, trays", kMostInBlock, [](uint32_t count) {
    return ParseAgain<PrnInfoEx>(Entries("\033T\r", "1\r6\r", count, "\n\033 "));
  });
  GrowthRow("reply, bins", kMostInBlock, [](uint32_t count) {
    return ParseAgain<PrnInfoEx>(Entries("\033L\r", "1\r0\r", count, "\n\033 "));
  });
  const auto convert = [](uint32_t group) {
    return [group](uint32_t count) {
      return AskLong(count, group, [group](const LongLists& lists, PrnInfoEx& record, PrnInfoEx&) {
        PatSetPMPrnInfoToPrnInfo(&record, &lists.manager, group);
      });
    };
  };
  GrowthRow("from the print manager, statuses", kAny, convert(GroupStatusList));
  GrowthRow("from the print manager, trays", kAny, convert(GroupTrays));
  const auto compare = [](uint32_t group) {
    return [group](uint32_t count) {
      return AskLong(count, group, [](const LongLists&, PrnInfoEx& record, PrnInfoEx& same) {
        Compare(record, same);
      });
    };
  };
  GrowthRow("comparison, statuses", kAny, compare(GroupStatusList));
  GrowthRow("comparison, trays", kAny, compare(GroupTrays));
  GrowthRow("status line, statuses", kAny, [](uint32_t count) {
    return AskLong(count, GroupStatusList,
                   [](const LongLists&, PrnInfoEx& record, PrnInfoEx&) { AskLine(record); });
  });
  GrowthRow("detail, trays of a ready printer", kAny, [](uint32_t count) {
    return AskLong(count, GroupTrays, [](const LongLists&, PrnInfoEx& record, PrnInfoEx&) {
      char text[512];
      PatGetDetailString_Ex(&record, text, sizeof text);
      Use(text);
    });
  });
  GrowthRow("part list, statuses", kAny, [](uint32_t count) {
    return AskLong(count, GroupStatusList, [](const LongLists&, PrnInfoEx& record, PrnInfoEx&) {
      PrnBitmap list;
      PatGetPrnBitmap_Ex(&record, &list);
      Use(list);
    });
  });
}

}  // namespace

// No rows with floors: nothing for the instruction counts.
void bench::BenchScale() {
  if (task.kind != Task::Measure) return;
  char japanese[] = "JP";
  PatSetLocale(japanese);
  BenchManyPrinters();
  BenchLongLists();
}
