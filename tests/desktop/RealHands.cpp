#include "tests/desktop/RealHands.h"

#include <stdexcept>
#include <vector>

#include "tests/desktop/Patience.h"
#include "tests/desktop/SystemWindows.h"

namespace troth::desktop {

namespace {

INPUT MouseInput(POINT place, DWORD flags) {
  // The screen is 65536 units wide and high; the middle of the pixel is meant.
  const auto scaled = [](LONG pixel, int size) { return (pixel * 65536 + 32768) / size; };
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = scaled(place.x, GetSystemMetrics(SM_CXSCREEN));
  input.mi.dy = scaled(place.y, GetSystemMetrics(SM_CYSCREEN));
  input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
  return input;
}

POINT MiddleOf(HWND window) {
  RECT bounds;
  GetWindowRect(window, &bounds);
  return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

void Send(std::vector<INPUT>& inputs) {
  if (SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) != inputs.size())
    throw std::runtime_error("the system refused keys or clicks");
}

}  // namespace

// A request is lost while the system is still busy with a window that was shown a moment ago.
void RealHands::BringToFront() const {
  const bool inFront = Eventually([this] {
    if (GetForegroundWindow() == form_) return true;
    SetForegroundWindow(form_);
    return Eventually([this] { return GetForegroundWindow() == form_; }, 300);
  });
  if (!inFront) throw std::runtime_error("the window does not come in front");
}

void RealHands::Press(int keyCode, int shift, int times) const {
  BringToFront();
  std::vector<INPUT> inputs;
  for (int press = 0; press < times; ++press) AddKey(inputs, keyCode, shift);
  Send(inputs);
}

void RealHands::Type(std::string_view text) const {
  BringToFront();
  std::vector<INPUT> inputs;
  for (const char c : text) {
    const SHORT key = VkKeyScanA(c);
    if (key == -1) throw std::runtime_error("no key of the keyboard gives this character");
    AddKey(inputs, LOBYTE(key), HIBYTE(key));
  }
  Send(inputs);
}

// The window may be in front and yet not drawn there: the click goes by the place.
void RealHands::Reach(POINT place) const {
  BringToFront();
  if (!Eventually([&] { return GetAncestor(WindowFromPoint(place), GA_ROOT) == form_; }))
    throw std::runtime_error("another window covers the place of the click");
}

void RealHands::Click(POINT place, int times) const {
  Reach(place);
  std::vector<INPUT> inputs{MouseInput(place, 0)};
  for (int click = 0; click < times; ++click)
    for (const DWORD button : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP})
      inputs.push_back(MouseInput(place, button));
  Send(inputs);
}

void RealHands::ClickMiddle(HWND control) const { Click(MiddleOf(control)); }

void RealHands::RightClickMiddle(HWND control) const {
  const POINT place = MiddleOf(control);
  Reach(place);
  std::vector<INPUT> inputs{MouseInput(place, 0), MouseInput(place, MOUSEEVENTF_RIGHTDOWN),
                            MouseInput(place, MOUSEEVENTF_RIGHTUP)};
  Send(inputs);
}

}  // namespace troth::desktop
