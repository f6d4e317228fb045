// The keyboard without the user's own modifiers and Caps Lock, for the time in which the program presses
// keys.
#pragma once

#include <vector>

#include "platform/win32/Win32.h"

namespace troth {

// A modifier that is still held, as that of the hotkey that started the typing, would turn letters into
// commands, and Caps Lock would invert their case. Both are off while this object lives. Its end turns Caps
// Lock on again and presses the modifiers that the user has not released in the meantime.
class NeutralKeyboard {
 public:
  NeutralKeyboard();
  ~NeutralKeyboard();
  NeutralKeyboard(const NeutralKeyboard&) = delete;
  NeutralKeyboard& operator=(const NeutralKeyboard&) = delete;

 private:
  static NeutralKeyboard*& Current();
  static LRESULT CALLBACK Watch(int code, WPARAM message, LPARAM event);

  Unique<HHOOK, UnhookWindowsHookEx> watch_;
  std::vector<int> held_;
  bool hadCapsLock_ = false;
};

}  // namespace troth
