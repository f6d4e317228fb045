#include "platform/win32/NeutralKeyboard.h"

#include <algorithm>

namespace troth {

namespace {

constexpr int kModifiers[] = {VK_LSHIFT, VK_RSHIFT, VK_LCONTROL, VK_RCONTROL,
                              VK_LMENU,  VK_RMENU,  VK_LWIN,     VK_RWIN};
constexpr int kUnassignedKey = 0xE8;

// The right Shift key is injected as the left one unless it is marked as extended.
bool IsExtended(int keyCode) {
  return keyCode == VK_RSHIFT || keyCode == VK_RCONTROL || keyCode == VK_RMENU || keyCode == VK_LWIN ||
         keyCode == VK_RWIN;
}

void Send(int keyCode, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(keyCode);
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(keyCode), MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags | (IsExtended(keyCode) ? KEYEVENTF_EXTENDEDKEY : 0);
  SendInput(1, &input, sizeof input);
}

void Tap(int keyCode) {
  Send(keyCode, 0);
  Send(keyCode, KEYEVENTF_KEYUP);
}

// Alt or a Windows key that is pressed and released with no key between opens a menu.
void PreventMenu() { Tap(kUnassignedKey); }

// The state of Caps Lock belongs to the thread that has the keyboard.
bool HasCapsLock() {
  const DWORD owner = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
  const bool isAttached =
      owner != GetCurrentThreadId() && AttachThreadInput(GetCurrentThreadId(), owner, TRUE);
  const bool isOn = (GetKeyState(VK_CAPITAL) & 1) != 0;
  if (isAttached) AttachThreadInput(GetCurrentThreadId(), owner, FALSE);
  return isOn;
}

}  // namespace

NeutralKeyboard::NeutralKeyboard() : hadCapsLock_(HasCapsLock()) {
  std::copy_if(std::begin(kModifiers), std::end(kModifiers), std::back_inserter(held_),
               [](int key) { return (GetAsyncKeyState(key) & 0x8000) != 0; });
  if (!held_.empty()) {
    Current() = this;
    watch_.reset(SetWindowsHookExW(WH_KEYBOARD_LL, &NeutralKeyboard::Watch, GetModuleHandleW(nullptr), 0));
    PreventMenu();
  }
  for (const int key : held_) Send(key, KEYEVENTF_KEYUP);
  if (hadCapsLock_) Tap(VK_CAPITAL);
}

NeutralKeyboard::~NeutralKeyboard() {
  if (hadCapsLock_) Tap(VK_CAPITAL);
  if (held_.empty()) return;
  for (const int key : held_) Send(key, 0);
  PreventMenu();
  watch_.reset();
  Current() = nullptr;
}

// A hook procedure has no data of its own.
NeutralKeyboard*& NeutralKeyboard::Current() {
  static NeutralKeyboard* current = nullptr;
  return current;
}

// Once released by the program, a key shows no longer whether the user holds it, but its release still
// arrives.
LRESULT CALLBACK NeutralKeyboard::Watch(int code, WPARAM message, LPARAM event) {
  const auto& key = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(event);
  const bool isRelease = message == WM_KEYUP || message == WM_SYSKEYUP;
  if (code == HC_ACTION && isRelease && !(key.flags & LLKHF_INJECTED) && Current())
    std::erase(Current()->held_, static_cast<int>(key.vkCode));
  return CallNextHookEx(nullptr, code, message, event);
}

}  // namespace troth
