#include "tests/desktop/conformance/RealWindows.h"

// The system's tool tips need windows.h before them.
#include <commctrl.h>

#include <optional>
#include <stdexcept>

#include "platform/forms/Control.h"
#include "platform/forms/Form.h"
#include "platform/forms/MenuItem.h"
#include "tests/desktop/SystemWindows.h"

namespace troth {

namespace {

[[noreturn]] void Fail(const std::string& what, const std::wstring& name) {
  std::string narrow;
  for (const wchar_t c : name) narrow += static_cast<char>(c);
  throw std::runtime_error(what + ": " + narrow);
}

std::vector<HWND> TopLevelWindows() {
  std::vector<HWND> windows;
  EnumThreadWindows(GetCurrentThreadId(), &CollectWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

std::optional<MenuPlace> Search(HWND form, HMENU menu, const std::wstring& caption, bool reachable) {
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    std::wstring text;
    const MENUITEMINFOW info = InfoAt(menu, static_cast<UINT>(position), text);
    const bool here = reachable && (info.fState & MFS_DISABLED) == 0;
    if (text == caption && (info.fType & MFT_SEPARATOR) == 0)
      return MenuPlace{form, menu, static_cast<UINT>(position), here};
    if (!info.hSubMenu) continue;
    if (const auto below = Search(form, info.hSubMenu, caption, here)) return below;
  }
  return std::nullopt;
}

}  // namespace

HWND FindWindowOf(const Form& form) {
  for (const HWND window : TopLevelWindows())
    if (NameOf(window) == form.Name()) return window;
  return nullptr;
}

HWND WindowOf(const Form& form) {
  const HWND window = FindWindowOf(form);
  if (!window) Fail("no window is named", form.Name());
  return window;
}

HWND WindowOf(const Control& control) {
  for (const HWND window : TopLevelWindows()) {
    for (const HWND child : WindowsBelow(window))
      if (NameOf(child) == control.Name()) return child;
  }
  Fail("no control is named", control.Name());
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::vector<HWND> StackingOrder() {
  std::vector<HWND> windows;
  EnumWindows(&CollectWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

HWND FindMessageBox() {
  for (const HWND window : TopLevelWindows())
    if (ClassOf(window) == L"#32770" && IsWindowVisible(window)) return window;
  return nullptr;
}

HWND FindQuestion() {
  for (const HWND window : TopLevelWindows())
    if (NameOf(window) == L"InputBox" && IsWindowVisible(window)) return window;
  return nullptr;
}

std::wstring ToolTipOf(HWND control) {
  wchar_t text[1024] = {};
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = GetParent(control);
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = text;
  for (const HWND window : TopLevelWindows()) {
    if (ClassOf(window) == TOOLTIPS_CLASSW)
      SendMessageW(window, TTM_GETTEXTW, 1024, reinterpret_cast<LPARAM>(&tool));
    if (*text) break;
  }
  return text;
}

MenuPlace PlaceOf(const MenuItem& item) {
  for (const HWND window : TopLevelWindows()) {
    const HMENU bar = NameOf(window).empty() ? nullptr : GetMenu(window);
    if (!bar) continue;
    if (const auto place = Search(window, bar, item.Caption(), true)) return *place;
  }
  return {};
}

MENUITEMINFOW InfoAt(HMENU menu, UINT position, std::wstring& text) {
  wchar_t buffer[256] = {};
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_ID | MIIM_STATE | MIIM_STRING | MIIM_FTYPE | MIIM_SUBMENU;
  info.dwTypeData = buffer;
  info.cch = 256;
  GetMenuItemInfoW(menu, position, TRUE, &info);
  text = buffer;
  return info;
}

}  // namespace troth
