// The part of Win32Form that takes input: keys before its controls do, the button that Enter presses, global
// hotkeys and dropped files.
#include "platform/win32/Win32Form.h"

#include <shellapi.h>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/win32/Win32Mouse.h"

namespace troth {

namespace {

constexpr UINT kHeldKeyPollMs = USER_TIMER_MINIMUM;

bool IsDown(int key) { return (GetAsyncKeyState(key) & 0x8000) != 0; }

}  // namespace

// Keys go to the handler of the control before the system sees them, but Tab stays the system's. A held Enter
// or Esc presses a button once.
bool Win32Form::TakeKey(const MSG& message) {
  if (message.message == WM_KEYUP && message.hwnd == window_) return TakeFormKey(message);
  if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
  Win32Control* const control = ControlOf(message.hwnd);
  // A window inside a control, such as the editor of a label, takes all keys itself.
  if (!control && message.hwnd != window_) return false;
  // A handler may unload the form, which then goes at the end of this function.
  const ControlHost::Hold hold(form_);
  const int shift = ShiftState();
  const int keyCode = static_cast<int>(message.wParam);
  const bool isRepeated = (message.lParam & 0x40000000) != 0;
  if (form_.UserPressedShortcut({keyCode, shift})) return true;
  if (message.message == WM_SYSKEYDOWN) return false;
  // A list that has dropped down closes by Enter and Esc itself.
  if (SendMessageW(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) return false;
  if (message.wParam == VK_RETURN && shift == 0 && !(control && control->TakesEnter()))
    return isRepeated || form_.UserPressedEnter(control ? &control->Portable() : nullptr);
  if (message.wParam == VK_ESCAPE && shift == 0) return isRepeated || form_.UserPressedEscape();
  if (message.wParam == VK_F1 && shift == 0) {
    if (!isRepeated) form_.UserAskedForHelp();
    return true;
  }
  if (message.hwnd == window_) return TakeFormKey(message);
  if (!control || message.wParam == VK_TAB) return false;
  KeyPress press{.keyCode = keyCode, .shift = shift};
  control->Portable().UserPressedKey(press);
  return press.handled || control->TakeKey(keyCode, shift);
}

bool Win32Form::TakeFormKey(const MSG& message) {
  const ControlHost::Hold hold(form_);
  KeyPress press{.keyCode = static_cast<int>(message.wParam), .shift = ShiftState()};
  if (message.message == WM_KEYUP)
    form_.UserReleasedKey(press);
  else
    form_.UserPressedKey(press);
  return press.handled;
}

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

// The button that Enter presses: the one with the keyboard, otherwise the form's default button.
const Control* Win32Form::ButtonForEnter() const {
  const Win32Control* focused = ControlOf(GetFocus());
  if (focused && dynamic_cast<const CommandButton*>(&focused->Portable())) return &focused->Portable();
  return form_.DefaultButton();
}

LRESULT Win32Form::AnswerDefaultButton() const {
  const Control* button = ButtonForEnter();
  for (const Win32Control* control : controls_)
    if (&control->Portable() == button) return MAKELRESULT(GetDlgCtrlID(control->Window()), DC_HASDEFID);
  return 0;
}

// The system moves the frame of the default button with Tab only, not with a click, and Wine takes it off all
// buttons when Tab leads to something else: a second look once the key has been served.
void Win32Form::FocusMoved() {
  MarkDefaultButton();
  PostMessageW(window_, kFocusSettled, 0, 0);
}

void Win32Form::MarkDefaultButton() {
  const Control* button = ButtonForEnter();
  for (const Win32Control* control : controls_) {
    if (!dynamic_cast<const CommandButton*>(&control->Portable())) continue;
    const LONG wanted = &control->Portable() == button ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if ((GetWindowLongW(control->Window(), GWL_STYLE) & BS_TYPEMASK) != wanted)
      SendMessageW(control->Window(), BM_SETSTYLE, static_cast<WPARAM>(wanted), TRUE);
  }
}

}  // namespace troth
