// Owner-drawn parts of the window. Each is drawn in memory and shown at once, so that nothing
// flickers.
#pragma once

#include <windows.h>

#include <string>

#include "stmonw/view.h"

namespace stmonw {

// Pixels on this screen for a length that was drawn for 96 dots per inch.
int Scaled(int pixels);

void DrawPictureItem(const DRAWITEMSTRUCT& item, HBITMAP picture);
void DrawIconItem(const DRAWITEMSTRUCT& item, const std::string& icon);
void DrawTextItem(const DRAWITEMSTRUCT& item, const std::wstring& text, HFONT font);
// A line of a list, broken into as many as it needs.
int WrappedHeight(HWND list, const std::wstring& text, HFONT font);
void DrawWrappedItem(const DRAWITEMSTRUCT& item, const std::wstring& text, HFONT font);

void DrawTrayItem(const DRAWITEMSTRUCT& item, const TrayLine& line, HFONT font);

}  // namespace stmonw
