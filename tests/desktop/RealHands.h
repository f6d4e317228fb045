// Keys and clicks through the system's input queue, as a keyboard and a mouse give them. They go to whatever
// window is in front, so each first waits until that is the one that is meant.
#pragma once

#include <windows.h>

#include <string_view>

namespace troth::desktop {

inline constexpr int kWithShift = 1;
inline constexpr int kWithControl = 2;
inline constexpr int kWithAlt = 4;

class RealHands {
 public:
  explicit RealHands(HWND form) : form_(form) {}

  // Throws if the form does not come in front.
  void BringToFront() const;

  // `times` in one go, as a hand that does not wait to see what comes of it.
  void Press(int keyCode, int shift = 0, int times = 1) const;
  // Characters that the keyboard can type.
  void Type(std::string_view text) const;
  // A point of the screen that lies on the form.
  void Click(POINT place, int times = 1) const;
  void ClickMiddle(HWND control) const;
  void RightClickMiddle(HWND control) const;

 private:
  // Waits until the form is what a click at the place reaches.
  void Reach(POINT place) const;

  HWND form_;
};

}  // namespace troth::desktop
