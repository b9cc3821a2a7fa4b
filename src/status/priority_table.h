// Which of several statuses counts: the smaller priority.
#pragma once

#include <cstdint>

namespace stm {

struct PriorityRow {
  uint32_t priority;
  uint32_t groupFlag;  // 1: comes in a group that shares a priority; for the reader, no code asks
  uint32_t code;
};

// Sorted by priority, so that the row number alone tells which of two statuses wins: among equals
// it is the one whose row comes first.
inline constexpr PriorityRow kPriorityTable[] = {
    //  priority  group  code
    {0, 0, 48},   // service call
    {1, 0, 99},   // front cover not placed properly
    {2, 0, 46},   // misfeed at the indicated area
    {3, 1, 97},   // misfeed in the duplex unit
    {3, 1, 96},   // misfeed in the duplex unit
    {4, 0, 45},   // misfeed at the rear or top cover
    {5, 0, 44},   // misfeed at a tray or the rear cover
    {6, 0, 43},   // fuser cleaner not placed properly
    {7, 0, 42},   // PCU not placed properly
    {8, 0, 93},   // tray or its connector not placed properly
    {9, 0, 94},   // transfer roller not placed properly
    {10, 0, 40},  // fusing oil not placed properly
    {11, 0, 39},  // back cover open
    {12, 0, 38},  // toner not placed properly
    {13, 1, 73},  // cyan toner not placed properly
    {13, 1, 74},  // magenta toner not placed properly
    {13, 1, 75},  // yellow toner not placed properly
    {13, 1, 76},  // black toner not placed properly
    {14, 0, 37},  // front cover open
    {15, 0, 36},  // top cover open
    {16, 1, 89},  // cover behind a tray open
    {16, 1, 90},  // cover behind a tray open
    {16, 0, 91},  // duplex unit cover open
    {18, 0, 34},  // output full
    {19, 0, 33},  // tray not placed properly
    {20, 0, 32},  // no paper
    {21, 0, 31},  // paper type error
    {22, 0, 28},  // fuser cleaner due
    {23, 0, 26},  // fusing oil empty
    {24, 0, 25},  // waste toner full
    {25, 1, 69},  // cyan toner empty
    {25, 1, 70},  // magenta toner empty
    {25, 1, 71},  // yellow toner empty
    {25, 1, 72},  // black toner empty
    {27, 0, 19},  // self check
    {28, 0, 18},  // energy saver
    {29, 0, 16},  // adjusting
    {30, 0, 17},  // warming up
    {31, 0, 82},  // output nearly full
    {32, 0, 6},   // fusing oil nearly empty
    {33, 0, 81},  // waste toner nearly full
    {34, 1, 65},  // cyan toner nearly empty
    {34, 1, 66},  // magenta toner nearly empty
    {34, 1, 67},  // yellow toner nearly empty
    {34, 1, 68},  // black toner nearly empty
    {35, 0, 4},   // toner nearly empty
    {36, 0, 5},   // fuser cleaner nearly due
    {37, 0, 8},   // PCU nearly due
    {38, 0, 10},  // fusing unit nearly due
    {39, 0, 83},  // unit T1 nearly due
    {40, 0, 9},   // maintenance required
    {41, 0, 85},  // unit R1 nearly due
    {42, 0, 86},  // unit R2 nearly due
    {43, 0, 87},  // unit R3 nearly due
    {44, 0, 88},  // unit D1 nearly due
    {45, 0, 0},   // ready
    {100, 0, 0},  // closing row: nothing listed has a row, the answer is code 0
};

inline constexpr uint32_t kPriorityRows = sizeof kPriorityTable / sizeof kPriorityTable[0] - 1;
inline constexpr uint32_t kNoPriority = 100;

// From here on (paper, consumables, waiting, reminders, ready) printing goes on: a printing printer
// is said to print. Before are service calls, misfeeds, misplaced units and open covers.
inline constexpr uint32_t kFirstPriorityWhilePrinting = 17;

static_assert(kPriorityRows == 56 && kPriorityTable[kPriorityRows].priority == kNoPriority);
static_assert([] {
  for (uint32_t row = 1; row <= kPriorityRows; ++row) {
    if (kPriorityTable[row].priority < kPriorityTable[row - 1].priority) return false;
  }
  return true;
}());

}  // namespace stm
