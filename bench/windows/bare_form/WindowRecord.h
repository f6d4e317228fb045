// Windows, controls and menus as plain data in a file: desktop_bench records those of the real program, and
// bare_form creates them. One struct after the other, the windows with their owner or parent before them.
#pragma once

#include <windows.h>

namespace troth::bench {

inline constexpr wchar_t kRecordFile[] = L"bare_form.dat";

struct WindowRecord {
  int parent;  // index of the parent or owner; -1: none
  int items;   // of its menu; their records follow
  bool isTopLevel;
  DWORD style, exStyle;
  RECT bounds;  // in pixels, of the screen or of the parent's client area
  wchar_t className[32];
  wchar_t text[80];
};

struct MenuItemRecord {
  int depth;   // 0 in the bar
  bool opens;  // the items after it with a greater depth are its own
  UINT type, state, id;
  wchar_t text[80];
};

}  // namespace troth::bench
