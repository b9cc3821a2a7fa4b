#include "platform/linux/handles.h"

#include <atomic>

namespace stm {
namespace {

std::atomic<Object*> table[kMostHandles];
std::atomic<uint32_t> entered{0};

// Handle: the number of the entry in the upper 20 bits, never 0, and its place in the lower 12.
constexpr uint32_t kPlaceBits = 12;
static_assert(1u << kPlaceBits == kMostHandles);

}  // namespace

bool EnterObject(Object* object, Kind kind) {
  if (!object) return false;
  const uint32_t number = entered.fetch_add(1, std::memory_order_relaxed);
  object->kind = kind;
  for (uint32_t i = 0; i < kMostHandles; ++i) {
    const uint32_t place = (number + i) % kMostHandles;
    Object* none = nullptr;
    if (table[place].load(std::memory_order_relaxed)) continue;
    const uint32_t serial = number % 0xFFFFF + 1;
    object->handle = serial << kPlaceBits | place;
    if (table[place].compare_exchange_strong(none, object, std::memory_order_acq_rel)) return true;
  }
  GlobalFree(object);
  return false;
}

Object* FindObject(const void* handle, Kind kind) {
  const auto number = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(handle));
  Object* object = ObjectAt(number % kMostHandles);
  return object && object->handle == number && object->kind == kind ? object : nullptr;
}

Object* ObjectAt(uint32_t place) {
  return table[place].load(std::memory_order_acquire);
}

void ReleaseObject(Object* object) {
  table[object->handle % kMostHandles].store(nullptr, std::memory_order_release);
  GlobalFree(object);
}

}  // namespace stm
