// stmdata_bench                       all tables
// stmdata_bench AREA...               some of them
// stmdata_bench --list                the names of the rows
// stmdata_bench --work ROW CALLS      runs one row's work so often and measures nothing; for
// stmdata_bench --floor ROW CALLS     profilers and instruction counters
#include <cstdlib>

#include "bench.h"

namespace {

struct Area {
  const char* name;
  void (*run)();
};

constexpr Area kAreas[] = {
    {"records", bench::BenchRecords},       // replies, Device ID, query, status row
    {"manager", bench::BenchPrintManager},  // both conversions, comparison
    {"texts", bench::BenchStatus},          // status line and detail
    {"poll", bench::BenchPoll},             // everything between a reply and what the user sees
    {"picture", bench::BenchPicture},       // part list and drawing
    {"scale", bench::BenchScale},           // many printers, long lists
};

// Every area, or the one with the name. Result: whether there was any.
bool RunAreas(const char* name) {
  bool found = false;
  for (const Area& area : kAreas) {
    if (name && std::strcmp(name, area.name) != 0) continue;
    area.run();
    found = true;
  }
  return found;
}

bool Is(const char* argument, const char* option) {
  return std::strcmp(argument, option) == 0;
}

int Usage() {
  std::fputs(
      "usage: stmdata_bench [AREA...] | --list | --work ROW CALLS | --floor ROW CALLS\nareas:",
      stderr);
  for (const Area& area : kAreas)
    std::fprintf(stderr, " %s", area.name);
  std::fputs("\n", stderr);
  return 2;
}

}  // namespace

int main(int count, char** arguments) {
  using bench::Task;
  if (count == 2 && Is(arguments[1], "--list")) {
    bench::task.kind = Task::List;
    RunAreas(nullptr);
  } else if (count == 4 && (Is(arguments[1], "--work") || Is(arguments[1], "--floor"))) {
    const auto calls = static_cast<uint32_t>(std::strtoul(arguments[3], nullptr, 10));
    bench::task = {Is(arguments[1], "--work") ? Task::RunWork : Task::RunFloor, arguments[2],
                   calls};
    RunAreas(nullptr);
  } else if (count == 1) {
    RunAreas(nullptr);
  } else {
    for (int i = 1; i < count; ++i) {
      if (!RunAreas(arguments[i])) return Usage();
    }
  }
}
