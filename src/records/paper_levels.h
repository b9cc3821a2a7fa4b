// Paper levels from flag words: the first row with one of its bits set answers.
#pragma once

#include <cstdint>

namespace stm {

struct PaperLevelRow {
  uint32_t flags;  // any of these bits; 0 closes the table and answers for the rest
  uint32_t level;
};

inline uint32_t PaperLevelOf(uint32_t flags, const PaperLevelRow* row) {
  while (row->flags && !(row->flags & flags))
    ++row;
  return row->level;
}

}  // namespace stm
