// The part of Win32Form that takes what does not come from its own controls: global hotkeys and dropped
// files.
#include "platform/win32/Win32Form.h"

#include <shellapi.h>

#include "platform/forms/Form.h"

namespace troth {

namespace {

constexpr UINT kHeldKeyPollMs = 20;

bool IsDown(int key) { return (GetAsyncKeyState(key) & 0x8000) != 0; }

}  // namespace

bool Win32Form::RegisterHotkey(std::uint16_t id, int modifiers, int keyCode) {
  return RegisterHotKey(window_, id, static_cast<UINT>(modifiers) | MOD_NOREPEAT,
                        static_cast<UINT>(keyCode)) != 0;
}

void Win32Form::UnregisterHotkey(std::uint16_t id) { UnregisterHotKey(window_, id); }

// Wine repeats the hotkey of a key that is held down, whatever MOD_NOREPEAT asks for. Until the key has been
// seen up, another report of it is such a repetition.
LRESULT Win32Form::OnHotkey(LPARAM lParam) {
  const int key = HIWORD(lParam);
  const bool isDown = IsDown(key);
  if (isDown && key == heldHotkey_) return 0;
  heldHotkey_ = isDown ? key : 0;
  if (isDown) SetTimer(window_, HeldHotkeyTimer(), kHeldKeyPollMs, nullptr);
  form_.UserPressedHotkey(LOWORD(lParam), key);
  return 0;
}

void Win32Form::WatchHeldHotkey() {
  if (IsDown(heldHotkey_)) return;
  heldHotkey_ = 0;
  KillTimer(window_, HeldHotkeyTimer());
}

LRESULT Win32Form::OnDropFiles(WPARAM wParam) {
  const auto files = reinterpret_cast<HDROP>(wParam);
  const auto queryFile = LateFunction<decltype(DragQueryFileW)>(L"shell32.dll", "DragQueryFileW");
  std::wstring path(queryFile(files, 0, nullptr, 0) + 1, L'\0');
  path.resize(queryFile(files, 0, path.data(), static_cast<UINT>(path.size())));
  LateFunction<decltype(DragFinish)>(L"shell32.dll", "DragFinish")(files);
  if (IsWindowEnabled(window_)) form_.UserDroppedFile(path);
  return 0;
}

}  // namespace troth
