#include "platform/win32/Win32ToolTips.h"

#include <commctrl.h>

namespace troth {

namespace {
constexpr std::size_t kShownCharacters = 1000;
}  // namespace

void Win32ToolTips::Create(HWND form, UINT dpi) {
  form_ = form;
  window_.reset(CreateWindowExW(
      WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  SendMessageW(window_.get(), TTM_SETMAXTIPWIDTH, 0, ToPixels(6000, dpi));
}

// A disabled control gets no mouse messages; they go to the form, which has the tip for the control's
// rectangle.
void Win32ToolTips::Refresh(const Win32Control& control) {
  if (!window_) return;
  // More would not fit on the screen.
  std::wstring text = control.ToolTipText().substr(0, kShownCharacters);
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = form_;
  tool.uId = reinterpret_cast<UINT_PTR>(control.Window());
  tool.lpszText = text.data();
  tool.uFlags = TTF_IDISHWND;
  SendMessageW(window_.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (text.empty()) return;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  if (!control.Portable().IsUsable()) {
    tool.uFlags = TTF_SUBCLASS;
    GetWindowRect(control.Window(), &tool.rect);
    MapWindowPoints(nullptr, form_, reinterpret_cast<POINT*>(&tool.rect), 2);
    if (!control.Portable().IsShown()) tool.rect = {};
  }
  SendMessageW(window_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace troth
