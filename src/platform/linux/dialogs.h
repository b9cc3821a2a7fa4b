// Dialogs in memory: a dialog owns picture controls, each a frame of pixels.
#pragma once

#include "platform/linux/dib.h"
#include "platform/linux/handles.h"

namespace stm {

struct Picture : Object {
  static constexpr Kind kKind = Kind::Picture;
  Picture* next;
  int32_t id;
  Frame frame;
  HGLOBAL block;  // where its pixels lie
};

struct Dialog : Object {
  static constexpr Kind kKind = Kind::Dialog;
  Picture* first;
};

}  // namespace stm
