// Values that all threads of the process read and set at any time.
#pragma once

#include <atomic>

namespace stm {

// Sets the value by an exchange, which stays recognisably atomic once it is compiled: a store would
// be a move like any other.
template <class Value>
void SetShared(std::atomic<Value>& place, Value value,
               std::memory_order order = std::memory_order_relaxed) {
  place.exchange(value, order);
}

}  // namespace stm
