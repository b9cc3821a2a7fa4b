// Values that all threads of the process read and set at any time, without an order among them.
#pragma once

#include <atomic>

namespace stm {

// Sets the value by an exchange, which a race detector knows as atomic. A store is compiled to a
// move like any other, and beside another thread's read it would be reported as a race. Where no
// other thread can be reading, a store is enough.
template <class Value>
void SetShared(std::atomic<Value>& place, Value value) {
  place.exchange(value, std::memory_order_relaxed);
}

}  // namespace stm
