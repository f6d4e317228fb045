#include "platform/win32/Win32Control.h"

#include <algorithm>

namespace troth {

Win32Control::Win32Control(ControlSite& site, Control& control, const Look& look)
    : site_(site), control_(control), look_(look), id_(site.AddControl(*this)) {
  MakeBrush();
}

// The window itself goes with its form.
Win32Control::~Win32Control() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  ForgetName(window_);
  site_.RemoveControl(*this);
}

void Win32Control::Open() {
  const DWORD style = look_.style | WS_CHILD | (control_.IsShown() ? WS_VISIBLE : 0) |
                      (control_.Enabled() ? 0 : WS_DISABLED) | (control_.IsTabStop() ? WS_TABSTOP : 0);
  const RECT place = Place();
  window_ =
      CreateWindowExW(look_.extendedStyle, look_.windowClass, WindowText().c_str(), style, place.left,
                      place.top, place.right - place.left, place.bottom - place.top, site_.Window(),
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_)), GetModuleHandleW(nullptr), nullptr);
  GiveName(window_, control_.Name());
  if (control_.IsTabStop()) {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Win32Control::HearFocus));
  }
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(ChooseFont()), FALSE);
}

void Win32Control::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      SetWindowTextW(window_, WindowText().c_str());
      FitToForm();
      break;
    case Aspect::Bounds:
      FitToForm();
      break;
    case Aspect::Visible:
      if (!control_.IsShown()) PassFocusOn();
      ShowWindow(window_, control_.IsShown() ? SW_SHOWNA : SW_HIDE);
      break;
    case Aspect::Enabled:
      if (!control_.Enabled()) PassFocusOn();
      EnableWindow(window_, control_.Enabled());
      break;
    case Aspect::Colors:
      MakeBrush();
      InvalidateRect(window_, nullptr, TRUE);
      break;
    case Aspect::ToolTip:
      site_.RefreshToolTip(*this);
      break;
    default:
      break;
  }
}

void Win32Control::TakeFocus() { site_.GiveFocus(window_); }

void Win32Control::FitToForm() {
  const RECT wanted = Place();
  RECT present;
  GetWindowRect(window_, &present);
  MapWindowPoints(nullptr, site_.Window(), reinterpret_cast<POINT*>(&present), 2);
  if (!EqualRect(&wanted, &present))
    SetWindowPos(window_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(ChooseFont()), IsWindowVisible(window_));
}

// Both edges are rounded, not the width: neighbours that touch in twips touch in pixels.
RECT Win32Control::PlaceAsGiven() const {
  const UINT dpi = site_.Dpi();
  const Rect bounds = control_.BoundsOnForm();
  return {ToPixels(bounds.left, dpi), ToPixels(bounds.top, dpi), ToPixels(bounds.left + bounds.width, dpi),
          ToPixels(bounds.top + bounds.height, dpi)};
}

CaptionBox Win32Control::Caption() const {
  const UINT dpi = site_.Dpi();
  const auto scaled = [dpi](int pixelsAt96) { return MulDiv(pixelsAt96, static_cast<int>(dpi), 96); };
  return {.text = std::wstring(control_.CaptionText()),
          .width = ToPixels(control_.Bounds().width, dpi) - scaled(look_.aroundCaption.width),
          .height = ToPixels(control_.Bounds().height, dpi) - scaled(look_.aroundCaption.height)};
}

RECT Win32Control::Place() const {
  RECT place = PlaceAsGiven();
  if (!HugsCaption()) return place;
  const CaptionBox caption = Caption();
  const SIZE text = site_.SizeOf(caption.text);
  const LONG width = place.right - place.left;
  const LONG height = place.bottom - place.top;
  if (text.cx > caption.width || height >= 2 * text.cy) return place;
  const LONG beside = std::max(0L, width - caption.width);
  // Drawn text comes out a pixel or two wider than measured where letters are hinted.
  place.right = place.left + text.cx + text.cy / 4 + beside;
  place.bottom = place.top + std::min(text.cy, height);
  return place;
}

HBRUSH Win32Control::Paint(HDC surface) const {
  if (control_.ForeColor()) SetTextColor(surface, *control_.ForeColor());
  if (!brush_) return nullptr;
  SetBkColor(surface, *control_.BackColor());
  return brush_.get();
}

// Stands in front of the procedure of the window's class and stays there when the control is gone: what the
// tool tips hang in front of it could not be taken out of the middle. The system's own way to hang in looks
// up a property, which is a question to another process, for each message.
LRESULT CALLBACK Win32Control::HearFocus(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto ofClass = reinterpret_cast<WNDPROC>(GetClassLongPtrW(window, GCLP_WNDPROC));
  const LRESULT result = CallWindowProcW(ofClass, window, message, wParam, lParam);
  if (message != WM_SETFOCUS && message != WM_KILLFOCUS) return result;
  auto* control = reinterpret_cast<Win32Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!control) return result;
  // The control may be gone behind the handlers that these two run.
  if (message == WM_SETFOCUS)
    control->control_.UserEntered();
  else
    control->control_.UserLeft();
  return result;
}

// A window that is disabled or hidden while it has the keyboard would keep it, and no key would arrive.
void Win32Control::PassFocusOn() {
  if (site_.FocusedControl() != window_) return;
  const HWND next = GetNextDlgTabItem(site_.Window(), window_, FALSE);
  site_.GiveFocus(next && next != window_ ? next : nullptr);
}

void Win32Control::MakeBrush() {
  const auto color = control_.BackColor();
  brush_.reset(color ? CreateSolidBrush(*color) : nullptr);
}

}  // namespace troth
