// Key presses for whatever window has the keyboard, written in key notation, and the names of global hotkeys.
// The hotkeys themselves belong to a form: see Form::RegisterHotkey.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace troth {

class KeyboardService {
 public:
  virtual ~KeyboardService() = default;

  // Presses the keys that the notation names and returns once they have been processed. "{ENTER}" is the
  // Enter key; "+", "^", "%", "~", "(", ")", "{" and "}" have a meaning of their own.
  virtual void TypeKeys(std::wstring_view notation) = 0;

  // A number for the name, the same for all programs of the desktop while one of them holds it; the name of a
  // global hotkey. 0 if there are no more numbers.
  virtual std::uint16_t AddGlobalAtom(const std::wstring& name) = 0;
  virtual void DeleteGlobalAtom(std::uint16_t atom) = 0;
};

}  // namespace troth
