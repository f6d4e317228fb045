// Key presses for whatever window has the keyboard, written in key notation.
#pragma once

#include <string_view>

namespace troth {

class KeyboardService {
 public:
  virtual ~KeyboardService() = default;

  // Presses the keys that the notation names and returns once they have been processed. "{ENTER}" is the
  // Enter key; "+", "^", "%", "~", "(", ")", "{" and "}" do not stand for themselves.
  virtual void TypeKeys(std::wstring_view notation) = 0;
};

}  // namespace troth
