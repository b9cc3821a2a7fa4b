// Handles of windows, device contexts and bitmaps. A handle is a number: a place in one table, and
// which of all the entries made so far is meant. The table itself knows the number and the kind, so
// that null, foreign and released handles are told from good ones without touching an object.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"

namespace stm {

enum class Kind : uint32_t { Bitmap, WindowContext, MemoryContext, Dialog, Picture };

// The head of every object. Objects are zero-filled global memory blocks.
struct Object {
  uint32_t handle;
};

// Enters the block into the table and fills its head. Result: false, and the block released, when
// it is null or the table is full.
bool EnterObject(Object* object, Kind kind);

// The object of the kind with this handle, or null.
Object* FindObject(const void* handle, Kind kind);

// Takes the object out of the table and releases its block.
void ReleaseObject(Object* object);

// `T` derives from Object and names its kind as T::kKind.
template <class T>
T* NewObject() {
  auto* object = static_cast<T*>(GlobalAlloc(GPTR, sizeof(T)));
  return EnterObject(object, T::kKind) ? object : nullptr;
}

template <class T>
T* Find(const void* handle) {
  return static_cast<T*>(FindObject(handle, T::kKind));
}

// Null for null.
template <class Handle>
Handle HandleOf(const Object* object) {
  return reinterpret_cast<Handle>(uintptr_t{object ? object->handle : 0});
}

}  // namespace stm
