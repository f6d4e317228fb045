#include "platform/win32/Win32Keyboard.h"

#include <vector>

#include "platform/forms/Control.h"
#include "platform/services/KeyNotation.h"
#include "platform/win32/NeutralKeyboard.h"
#include "platform/win32/Win32.h"

namespace troth {

namespace {

constexpr DWORD kPatienceMs = 1000;

INPUT KeyInput(WORD keyCode, WORD scanCode, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = keyCode;
  input.ki.wScan = scanCode;
  input.ki.dwFlags = flags;
  return input;
}

void AddKey(std::vector<INPUT>& inputs, int keyCode, bool release) {
  const auto key = static_cast<WORD>(keyCode);
  const auto scan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  inputs.push_back(KeyInput(key, scan, release ? KEYEVENTF_KEYUP : 0));
}

void AddShifts(std::vector<INPUT>& inputs, int shift, bool release) {
  if (shift & kShiftDown) AddKey(inputs, VK_SHIFT, release);
  if (shift & kControlDown) AddKey(inputs, VK_CONTROL, release);
  if (shift & kAltDown) AddKey(inputs, VK_MENU, release);
}

// A character is typed by the keys that it has on this keyboard; one that has none is sent as a character.
void AddStroke(std::vector<INPUT>& inputs, KeyStroke stroke) {
  if (stroke.character) {
    const SHORT keys = VkKeyScanW(stroke.character);
    if (keys == -1) {
      inputs.push_back(KeyInput(0, stroke.character, KEYEVENTF_UNICODE));
      inputs.push_back(KeyInput(0, stroke.character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
      return;
    }
    stroke.keyCode = LOBYTE(keys);
    stroke.shift |= HIBYTE(keys) & (kShiftDown | kControlDown | kAltDown);
  }
  AddShifts(inputs, stroke.shift, false);
  AddKey(inputs, stroke.keyCode, false);
  AddKey(inputs, stroke.keyCode, true);
  AddShifts(inputs, stroke.shift, true);
}

// After a change of the foreground there is no foreground window until the new one has processed it, and a
// key that is pressed before is lost.
void WaitForKeyboardOwner() {
  for (DWORD waited = 0; !GetForegroundWindow() && waited < kPatienceMs; ++waited) Sleep(1);
}

// Returns when the window that has the keyboard has processed what was sent to it so far.
void WaitUntilTaken() {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(GetForegroundWindow(), WM_NULL, 0, 0, SMTO_ABORTIFHUNG, kPatienceMs, &answer);
}

}  // namespace

std::uint16_t Win32Keyboard::AddGlobalAtom(const std::wstring& name) { return GlobalAddAtomW(name.c_str()); }

void Win32Keyboard::DeleteGlobalAtom(std::uint16_t atom) { GlobalDeleteAtom(atom); }

// A key has been processed when the window that has the keyboard answers a message that was sent after it.
void Win32Keyboard::TypeKeys(std::wstring_view notation) {
  const auto strokes = ParseKeyNotation(notation);
  if (!strokes) return;
  WaitForKeyboardOwner();
  WaitUntilTaken();
  const NeutralKeyboard neutral;
  for (const KeyStroke& stroke : *strokes) {
    std::vector<INPUT> inputs;
    AddStroke(inputs, stroke);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
    WaitUntilTaken();
  }
}

}  // namespace troth
