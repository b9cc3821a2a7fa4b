#include "platform/linux/handles.h"

#include <atomic>

namespace stm {
namespace {

constexpr uint32_t kMostHandles = 4096;

// Who stores an object has the place. Look-ups find it once its handle is stored, which is 0 before
// and afterwards.
struct Entry {
  std::atomic<Object*> object;
  std::atomic<uint32_t> handle;
  std::atomic<Kind> kind;
};

Entry table[kMostHandles];
std::atomic<uint32_t> entered{0};

// Handle: the number of the entry in the upper 20 bits, never 0, and its place in the lower 12.
constexpr uint32_t kPlaceBits = 12;
static_assert(1u << kPlaceBits == kMostHandles);

}  // namespace

bool EnterObject(Object* object, Kind kind) {
  if (!object) return false;
  const uint32_t number = entered.fetch_add(1, std::memory_order_relaxed);
  for (uint32_t i = 0; i < kMostHandles; ++i) {
    const uint32_t place = (number + i) % kMostHandles;
    Entry& entry = table[place];
    Object* none = nullptr;
    if (!entry.object.compare_exchange_strong(none, object, std::memory_order_acq_rel)) continue;
    const uint32_t serial = number % 0xFFFFF + 1;
    object->handle = serial << kPlaceBits | place;
    entry.kind.store(kind, std::memory_order_relaxed);
    entry.handle.store(object->handle, std::memory_order_release);
    return true;
  }
  GlobalFree(object);
  return false;
}

Object* FindObject(const void* handle, Kind kind) {
  const auto number = reinterpret_cast<uintptr_t>(handle);
  const Entry& entry = table[number % kMostHandles];
  if (number == 0 || entry.handle.load(std::memory_order_acquire) != number) return nullptr;
  if (entry.kind.load(std::memory_order_relaxed) != kind) return nullptr;
  return entry.object.load(std::memory_order_acquire);
}

void ReleaseObject(Object* object) {
  Entry& entry = table[object->handle % kMostHandles];
  entry.handle.store(0, std::memory_order_relaxed);
  entry.object.store(nullptr, std::memory_order_release);
  GlobalFree(object);
}

}  // namespace stm
