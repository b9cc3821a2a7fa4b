// The picture of the printer, drawn out of sight: the library draws it layer by layer into a
// window, which nobody should have to watch.
#pragma once

#include <windows.h>

#include "stmdata/stmdata.h"

namespace stmonw {

constexpr int kPictureWidth = 320;  // pixels, as the library draws
constexpr int kPictureHeight = 200;

// The window out of sight. Destroyed with DestroyWindow.
HWND CreateEasel(HINSTANCE instance);

// The layers of the record's picture. The drawing below takes those that were composed last.
PrnBitmap ComposePicture(const PrnInfoEx& record);

// Result: a bitmap of kPictureWidth x kPictureHeight for the caller to delete, white where the
// library draws nothing; null without memory.
//   control_id  the control of `dialog` that shows the picture; drawn into when the system gives no
//               pixels to windows out of sight
HBITMAP DrawPicture(HWND easel, HWND dialog, int control_id);

}  // namespace stmonw
