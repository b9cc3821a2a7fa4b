// Takes the place of GlobalAlloc and GlobalFree in the library and in the tests: counts the blocks
// that live and lets chosen allocations fail.
#pragma once

#include <cstdint>

namespace test {

enum class Faults { One, AllFromThere };

// Lets the allocation number `number`, counted from 1 and from now, fail, and the later ones with
// it where told so.
void FailAllocation(uint32_t number, Faults faults);

// Ends the faults. Result: whether an allocation failed since they were asked for.
bool EndFaults();

// Blocks that are allocated and not yet released.
int32_t LiveBlocks();

}  // namespace test
