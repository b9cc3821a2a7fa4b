// Values that all threads of the process read and set at any time.
#pragma once

#include <atomic>

namespace stm {

// Sets the value by an exchange. A plain store does the same, but is a move among others once
// compiled, and tools that look for data races in running programs would report it.
template <class Value>
void SetShared(std::atomic<Value>& place, Value value,
               std::memory_order order = std::memory_order_relaxed) {
  place.exchange(value, order);
}

}  // namespace stm
