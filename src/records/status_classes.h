// How grave the printer's status codes are for `hasError`: an error, unless a row says less.
#pragma once

#include <cstdint>

#include "records/row_index.h"

namespace stm {

enum : uint32_t { StatusClassReady = 0, StatusClassWarning = 1, StatusClassError = 2 };

struct StatusClassRow {
  uint32_t code;
  uint32_t statusClass;
};

inline constexpr StatusClassRow kStatusClasses[] = {
    //  code  class
    {0, StatusClassReady},           // ready
    {4, StatusClassWarning},         // toner nearly empty
    {5, StatusClassWarning},         // fuser cleaner nearly due
    {6, StatusClassWarning},         // fusing oil nearly empty
    {8, StatusClassWarning},         // PCU nearly due
    {9, StatusClassWarning},         // maintenance required
    {10, StatusClassWarning},        // fusing unit nearly due
    {16, StatusClassReady},          // adjusting
    {17, StatusClassReady},          // warming up
    {18, StatusClassReady},          // energy saver
    {19, StatusClassReady},          // self check
    {0xFFFFFFFF, StatusClassError},  // closing row: every other code
};

inline uint32_t StatusClass(uint32_t code) {
  return RowOf<kStatusClasses, &StatusClassRow::code>(code).statusClass;
}

}  // namespace stm
