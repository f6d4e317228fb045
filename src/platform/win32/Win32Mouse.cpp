#include "platform/win32/Win32Mouse.h"

#include <windowsx.h>

#include "platform/forms/Control.h"

namespace troth {

namespace {

MouseButton HeldButton(WPARAM keys) {
  if (keys & MK_LBUTTON) return MouseButton::Left;
  if (keys & MK_RBUTTON) return MouseButton::Right;
  return keys & MK_MBUTTON ? MouseButton::Middle : MouseButton::None;
}

struct Meaning {
  UINT message;
  MouseAction action;
  MouseButton button;
};
constexpr Meaning kMeanings[] = {
    {WM_LBUTTONDOWN, MouseAction::Down, MouseButton::Left},
    {WM_LBUTTONUP, MouseAction::Up, MouseButton::Left},
    {WM_RBUTTONDOWN, MouseAction::Down, MouseButton::Right},
    {WM_RBUTTONUP, MouseAction::Up, MouseButton::Right},
    {WM_RBUTTONDBLCLK, MouseAction::Down, MouseButton::Right},
    {WM_MBUTTONDOWN, MouseAction::Down, MouseButton::Middle},
    {WM_MBUTTONUP, MouseAction::Up, MouseButton::Middle},
};

}  // namespace

int ShiftState() {
  const auto isDown = [](int key) { return (GetKeyState(key) & 0x8000) != 0; };
  return (isDown(VK_SHIFT) ? kShiftDown : 0) + (isDown(VK_CONTROL) ? kControlDown : 0) +
         (isDown(VK_MENU) ? kAltDown : 0);
}

std::optional<MouseMessage> ReadMouseMessage(UINT message, WPARAM wParam, LPARAM lParam, UINT dpi) {
  const Point place{ToTwips(GET_X_LPARAM(lParam), dpi), ToTwips(GET_Y_LPARAM(lParam), dpi)};
  if (message == WM_MOUSEMOVE)
    return MouseMessage{MouseAction::Move, {HeldButton(wParam), ShiftState(), place}};
  for (const Meaning& meaning : kMeanings)
    if (meaning.message == message)
      return MouseMessage{meaning.action, {meaning.button, ShiftState(), place}};
  return std::nullopt;
}

}  // namespace troth
