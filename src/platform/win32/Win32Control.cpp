#include "platform/win32/Win32Control.h"

#include <commctrl.h>

#include <algorithm>

namespace troth {

Win32Control::Win32Control(ControlSite& site, Control& control, const Look& look)
    : site_(site), control_(control), aroundCaption_(look.aroundCaption) {
  const int id = site.AddControl(*this);
  const DWORD style = look.style | WS_CHILD | (control.IsShown() ? WS_VISIBLE : 0) |
                      (control.Enabled() ? 0 : WS_DISABLED) | (control.IsTabStop() ? WS_TABSTOP : 0);
  const RECT place = Place();
  window_ = CreateWindowExW(look.extendedStyle, look.windowClass, std::wstring(control.CaptionText()).c_str(),
                            style, place.left, place.top, place.right - place.left, place.bottom - place.top,
                            site.Window(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                            GetModuleHandleW(nullptr), nullptr);
  GiveName(window_, control.Name());
  SetWindowSubclass(window_, &Win32Control::SubclassProc, 1, reinterpret_cast<DWORD_PTR>(this));
  MakeBrush();
}

// The window itself goes with its form.
Win32Control::~Win32Control() {
  RemoveWindowSubclass(window_, &Win32Control::SubclassProc, 1);
  ForgetName(window_);
  site_.RemoveControl(*this);
}

void Win32Control::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      SetWindowTextW(window_, std::wstring(control_.CaptionText()).c_str());
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

// Moving costs, also where nothing moves: a form of twenty controls comes up faster without.
void Win32Control::FitToForm() {
  const RECT wanted = Place();
  RECT present;
  GetWindowRect(window_, &present);
  MapWindowPoints(nullptr, site_.Window(), reinterpret_cast<POINT*>(&present), 2);
  if (!EqualRect(&wanted, &present))
    SetWindowPos(window_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(site_.Font()), IsWindowVisible(window_));
}

// Both edges are rounded, not the width: neighbours that touch in twips touch in pixels.
RECT Win32Control::Place() const {
  const UINT dpi = site_.Dpi();
  const Rect bounds = control_.BoundsOnForm();
  return {ToPixels(bounds.left, dpi), ToPixels(bounds.top, dpi), ToPixels(bounds.left + bounds.width, dpi),
          ToPixels(bounds.top + bounds.height, dpi)};
}

CaptionBox Win32Control::Caption() const {
  const UINT dpi = site_.Dpi();
  const auto scaled = [dpi](int pixelsAt96) { return MulDiv(pixelsAt96, static_cast<int>(dpi), 96); };
  return {.text = std::wstring(control_.CaptionText()),
          .width = ToPixels(control_.Bounds().width, dpi) - scaled(aroundCaption_.width),
          .height = ToPixels(control_.Bounds().height, dpi) - scaled(aroundCaption_.height)};
}

void Win32Control::HugCaption() {
  const CaptionBox caption = Caption();
  const SIZE text = CaptionSize(window_, site_.Font(), caption.text);
  RECT place;
  GetClientRect(window_, &place);
  if (text.cx > caption.width || place.bottom >= 2 * text.cy) return;
  const int beside = std::max(0, static_cast<int>(place.right) - caption.width);
  // Drawn text comes out a pixel or two wider than measured where letters are hinted.
  SetWindowPos(window_, nullptr, 0, 0, text.cx + text.cy / 4 + beside, std::min(text.cy, place.bottom),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

HBRUSH Win32Control::Paint(HDC surface) const {
  if (control_.ForeColor()) SetTextColor(surface, *control_.ForeColor());
  if (!brush_) return nullptr;
  SetBkColor(surface, *control_.BackColor());
  return brush_.get();
}

LRESULT CALLBACK Win32Control::SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                            DWORD_PTR data) {
  auto* control = reinterpret_cast<Win32Control*>(data);
  const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
  // The control may be gone behind the handlers that these two run.
  if (message == WM_SETFOCUS) control->control_.UserEntered();
  if (message == WM_KILLFOCUS) control->control_.UserLeft();
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
