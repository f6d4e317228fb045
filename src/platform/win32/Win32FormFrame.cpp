// The part of Win32Form that changes the window at run time: size, frame, ground, popup menus, and the mouse
// on the form's own ground.
#include "platform/win32/Win32Form.h"

#include "platform/forms/Form.h"
#include "platform/win32/Win32FormStyle.h"
#include "platform/win32/Win32Mouse.h"

namespace troth {

ControlHost& Win32Form::Host() const { return form_; }

void Win32Form::RefreshBorder() {
  const auto kept =
      static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)) & (WS_EX_TOPMOST | WS_EX_ACCEPTFILES);
  SetWindowLongW(window_, GWL_EXSTYLE, static_cast<LONG>(ExtendedStyleOf(form_.Options()) | kept));
  const DWORD visible = static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)) & (WS_VISIBLE | WS_DISABLED);
  SetStyleBits(StyleOf(form_.Options()) | visible);
}

void Win32Form::RefreshBackColor() {
  const auto color = form_.ShownBackColor();
  ground_.reset(color ? CreateSolidBrush(*color) : nullptr);
  InvalidateRect(window_, nullptr, TRUE);
}

HBRUSH Win32Form::Ground() const { return ground_ ? ground_.get() : GetSysColorBrush(COLOR_BTNFACE); }

std::optional<Color> Win32Form::GroundColor() const { return form_.ShownBackColor(); }

LRESULT Win32Form::OnEraseGround(WPARAM wParam) {
  RECT client;
  GetClientRect(window_, &client);
  FillRect(reinterpret_cast<HDC>(wParam), &client, Ground());
  return 1;
}

Size Win32Form::ClientSize() const {
  RECT client;
  GetClientRect(window_, &client);
  return {ToTwips(client.right, dpi_), ToTwips(client.bottom, dpi_)};
}

Size Win32Form::FromPixels(PixelSize size) const {
  return {ToTwips(size.width, dpi_), ToTwips(size.height, dpi_)};
}

void Win32Form::SetOuterSize(Size size) {
  outerSize_ = size;
  FitFrame();
}

std::uint32_t Win32Form::StyleBits() const {
  return static_cast<std::uint32_t>(GetWindowLongW(window_, GWL_STYLE));
}

void Win32Form::SetStyleBits(std::uint32_t bits) {
  RECT outer;
  GetWindowRect(window_, &outer);
  SetWindowLongW(window_, GWL_STYLE, static_cast<LONG>(bits));
  SetWindowPos(window_, nullptr, outer.left, outer.top, outer.right - outer.left, outer.bottom - outer.top,
               SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_FRAMECHANGED | SWP_NOACTIVATE);
}

void Win32Form::StartDrag() {
  ReleaseCapture();
  SendMessageW(window_, WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

void Win32Form::Repaint() { RedrawWindow(window_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN); }

// At the pointer, or at the control with the keyboard if the menu was asked for by a key.
POINT Win32Form::PopupPlace() const {
  POINT place{};
  if (GetKeyState(VK_APPS) < 0 || GetKeyState(VK_F10) < 0)
    ClientToScreen(GetFocus(), &place);
  else
    GetCursorPos(&place);
  return place;
}

void Win32Form::PopupMenu(MenuItem& menu) {
  ++popupsShown_;
  if (MenuItem* chosen = Win32Menu::TrackPopup(window_, PopupPlace(), menu)) chosen->UserChose();
}

bool Win32Form::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_LBUTTONDBLCLK) {
    form_.UserDoubleClicked();
    return true;
  }
  const auto mouse = ReadMouseMessage(message, wParam, lParam, dpi_);
  if (!mouse) return false;
  const ControlHost::Hold hold(form_);
  form_.UserMouse(mouse->action, mouse->event);
  if (mouse->event.button != MouseButton::Left || mouse->action == MouseAction::Move) return true;
  if (mouse->action == MouseAction::Up && pressed_) form_.UserClicked();
  pressed_ = mouse->action == MouseAction::Down;
  return true;
}

}  // namespace troth
