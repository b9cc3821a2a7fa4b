// A loop with medians. A row of the table is a piece of work beside its floor: the least that any
// implementation has to do for the same result, measured in turns with it.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

namespace bench {

// What of each row is done, set once by main.
struct Task {
  enum { Measure, List, RunWork, RunFloor } kind;
  const char* row;  // RunWork, RunFloor: the row to run
  uint32_t calls;   // ... and how often
};
inline Task task{Task::Measure, nullptr, 0};

// Keeps the compiler from dropping work whose result nobody uses.
template <class Value>
inline void Use(const Value& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

template <class Work>
void Repeat(uint32_t calls, Work& work) {
  for (uint32_t i = 0; i < calls; ++i)
    work();
}

template <class Work>
double BatchNanoseconds(uint32_t calls, Work& work) {
  const auto start = std::chrono::steady_clock::now();
  Repeat(calls, work);
  const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
  return spent.count() / calls;
}

// As many calls as take a fifth of a millisecond or more: long for the clock, and short enough that
// a busy machine interrupts only some of the batches.
template <class Work>
uint32_t CallsPerBatch(Work& work) {
  uint32_t calls = 1;
  while (BatchNanoseconds(calls, work) * calls < 2e5)
    calls *= 2;
  return calls;
}

inline double Median(std::vector<double>& values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

template <class Work, class Floor>
void MeasureRow(const char* name, Work& work, Floor& floor, double aim) {
  constexpr int kBatches = 401;
  const uint32_t calls = CallsPerBatch(work);
  const uint32_t floorCalls = CallsPerBatch(floor);
  std::vector<double> spent, least;
  for (int i = 0; i < kBatches; ++i) {
    spent.push_back(BatchNanoseconds(calls, work));
    least.push_back(BatchNanoseconds(floorCalls, floor));
  }
  const double ns = Median(spent);
  const double ratio = ns / Median(least);
  std::printf("%-46s %10.1f %10.1f %8.2f", name, ns, ns / ratio, ratio);
  if (aim > 0) std::printf(" %8.2f%s", aim, ratio <= aim ? "" : "  missed");
  std::printf("\n");
}

// A row: the medians of both in nanoseconds a call, their ratio, and the ratio that is aimed at
// where there is one.
template <class Work, class Floor>
void Row(const char* name, Work work, Floor floor, double aim = 0) {
  const bool asked = !task.row || std::strcmp(task.row, name) == 0;
  if (task.kind == Task::Measure) MeasureRow(name, work, floor, aim);
  if (task.kind == Task::List) std::puts(name);
  if (task.kind == Task::RunWork && asked) Repeat(task.calls, work);
  if (task.kind == Task::RunFloor && asked) Repeat(task.calls, floor);
}

// A note under the header of an area: of the table only.
template <class... Values>
void Note(const char* format, Values... values) {
  if (task.kind == Task::Measure) std::printf(format, values...);
}

inline void Header(const char* area) {
  Note("\n%-46s %10s %10s %8s %8s\n", area, "ns", "floor ns", "ratio", "aim");
}

// ---- One function for each area, in a file of its own ----------------------------------------
void BenchRecords();
void BenchPrintManager();
void BenchStatus();
void BenchPoll();
void BenchPicture();
void BenchScale();

}  // namespace bench
