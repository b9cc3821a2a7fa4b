// Bitmap objects, and the device contexts that hold them.
#pragma once

#include "platform/linux/dib.h"
#include "platform/linux/handles.h"

namespace stm {

struct Bitmap : Object {
  static constexpr Kind kKind = Kind::Bitmap;
  Dib dib;
  bool selected;  // a device context holds it; it is not released meanwhile
};

// The bytes of a resource, null and 0 when the module has none with this handle, or of this name.
struct Bytes {
  const uint8_t* data;
  uint32_t size;
};
Bytes BytesOf(HRSRC resource);
Bytes ResourceBytes(HINSTANCE module, const char* name, const char* type);

}  // namespace stm
