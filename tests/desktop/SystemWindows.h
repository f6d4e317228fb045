// What both kinds of tests on real windows ask and do: names and classes of windows, and strokes of keys.
#pragma once

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

namespace troth {

inline BOOL CALLBACK CollectWindow(HWND window, LPARAM list) {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

// All windows on the form, those in frames included, in tab order.
inline std::vector<HWND> WindowsBelow(HWND form) {
  std::vector<HWND> windows;
  EnumChildWindows(form, &CollectWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

// What a window is called by the program; empty if it has no name.
inline std::wstring NameOf(HWND window) {
  wchar_t name[256] = {};
  const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"Trothline.Name")));
  return atom && GlobalGetAtomNameW(atom, name, 256) ? name : L"";
}

inline std::wstring ClassOf(HWND window) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  return name;
}

inline INPUT KeyInput(int keyCode, bool up) {
  const bool extended = keyCode >= VK_PRIOR && keyCode <= VK_DELETE;
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(keyCode);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(keyCode), MAPVK_VK_TO_VSC));
  input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0u) | (extended ? KEYEVENTF_EXTENDEDKEY : 0u);
  return input;
}

// A key pressed and released while the keys of a sum of 1 (Shift), 2 (Control) and 4 (Alt) are held.
inline void AddKey(std::vector<INPUT>& inputs, int keyCode, int shift) {
  constexpr std::pair<int, int> kShiftKeys[] = {{1, VK_SHIFT}, {2, VK_CONTROL}, {4, VK_MENU}};
  for (const auto& [bit, key] : kShiftKeys)
    if (shift & bit) inputs.push_back(KeyInput(key, false));
  for (const bool up : {false, true}) inputs.push_back(KeyInput(keyCode, up));
  for (const auto& [bit, key] : kShiftKeys)
    if (shift & bit) inputs.push_back(KeyInput(key, true));
}

}  // namespace troth
