#include "platform/linux/dialogs.h"

#include <algorithm>

namespace {

constexpr uint32_t kWhite = 0x00FFFFFF;

// Pixels begin where a line of the processor's cache does, and so does every row of a control as
// wide as the library's pictures: a store of many pixels then seldom touches two lines.
constexpr uint32_t kAlignment = 64;

stm::Picture* FindPicture(HWND handle, int32_t id) {
  const auto* dialog = stm::Find<stm::Dialog>(handle);
  stm::Picture* picture = dialog ? dialog->first : nullptr;
  while (picture && picture->id != id)
    picture = picture->next;
  return picture;
}

}  // namespace

extern "C" {

HWND STM_CALL GetDlgItem(HWND dialog, int controlId) {
  return stm::HandleOf<HWND>(FindPicture(dialog, controlId));
}

HWND STM_CALL HostCreateDialog(void) {
  return stm::HandleOf<HWND>(stm::NewObject<stm::Dialog>());
}

BOOL STM_CALL HostAddPicture(HWND handle, int32_t controlId, int32_t width, int32_t height) {
  auto* dialog = stm::Find<stm::Dialog>(handle);
  if (!dialog || FindPicture(handle, controlId)) return 0;
  if (width < 1 || width > stm::kLargestSide || height < 1 || height > stm::kLargestSide) return 0;
  // Less than 2^32: the largest side squared is below 2^30.
  const uint32_t count = static_cast<uint32_t>(width) * static_cast<uint32_t>(height);
  const HGLOBAL block = GlobalAlloc(GMEM_FIXED, count * sizeof(uint32_t) + kAlignment);
  if (!block) return 0;
  auto* picture = stm::NewObject<stm::Picture>();
  if (!picture) {
    GlobalFree(block);
    return 0;
  }
  const auto address = reinterpret_cast<uintptr_t>(block);
  auto* pixels = reinterpret_cast<uint32_t*>((address + kAlignment - 1) / kAlignment * kAlignment);
  std::fill_n(pixels, count, kWhite);
  picture->id = controlId;
  picture->block = block;
  picture->frame = {pixels, width, height};
  picture->next = dialog->first;
  dialog->first = picture;
  return 1;
}

uint32_t* STM_CALL HostPicturePixels(HWND dialog, int32_t controlId, int32_t* width,
                                     int32_t* height) {
  const stm::Picture* picture = FindPicture(dialog, controlId);
  if (!picture) return nullptr;
  if (width) *width = picture->frame.width;
  if (height) *height = picture->frame.height;
  return picture->frame.pixels;
}

BOOL STM_CALL HostDestroyDialog(HWND handle) {
  auto* dialog = stm::Find<stm::Dialog>(handle);
  if (!dialog) return 0;
  while (stm::Picture* picture = dialog->first) {
    dialog->first = picture->next;
    GlobalFree(picture->block);
    stm::ReleaseObject(picture);
  }
  stm::ReleaseObject(dialog);
  return 1;
}
}
