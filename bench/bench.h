// A loop with medians. A row of the table is a piece of work beside its floor: the least that any
// implementation has to do for the same result, measured in turns with it.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace bench {

// Keeps the compiler from dropping work whose result nobody uses.
template <class Value>
inline void Use(const Value& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

template <class Work>
double BatchNanoseconds(uint32_t calls, Work& work) {
  const auto start = std::chrono::steady_clock::now();
  for (uint32_t i = 0; i < calls; ++i)
    work();
  const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
  return spent.count() / calls;
}

// As many calls as take a millisecond or more.
template <class Work>
uint32_t CallsPerBatch(Work& work) {
  uint32_t calls = 1;
  while (BatchNanoseconds(calls, work) * calls < 1e6)
    calls *= 2;
  return calls;
}

inline double Median(std::vector<double>& values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

// Prints the medians of both in nanoseconds a call, their ratio, and the ratio that is aimed at.
template <class Work, class Floor>
void Row(const char* name, Work work, Floor floor, double aim) {
  constexpr int kBatches = 201;
  const uint32_t calls = CallsPerBatch(work);
  const uint32_t floorCalls = CallsPerBatch(floor);
  std::vector<double> spent, least;
  for (int i = 0; i < kBatches; ++i) {
    spent.push_back(BatchNanoseconds(calls, work));
    least.push_back(BatchNanoseconds(floorCalls, floor));
  }
  const double ns = Median(spent);
  const double floorNs = Median(least);
  std::printf("%-44s %10.1f %10.1f %8.2f %8.2f%s\n", name, ns, floorNs, ns / floorNs, aim,
              ns / floorNs <= aim ? "" : "  missed");
}

inline void Header(const char* area) {
  std::printf("\n%-44s %10s %10s %8s %8s\n", area, "ns", "floor ns", "ratio", "aim");
}

// ---- One function for each area, in a file of its own ----------------------------------------
void BenchRecords();
void BenchPrintManager();
void BenchStatus();
void BenchPicture();

}  // namespace bench
