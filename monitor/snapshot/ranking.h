// Which of several status codes decides, and which would without it, as the library sees it. Its
// priorities are no part of its interface; they are found out by asking, so that the monitors have
// none of their own that could differ.
#pragma once

#include <cstdint>
#include <vector>

namespace stmon {

// The codes in groups, the deciding ones first; toners of one kind share a group. Codes that the
// library has no priority for are in no group. `codes` has no repetitions.
std::vector<std::vector<uint32_t>> RankCodes(std::vector<uint32_t> codes);

}  // namespace stmon
