#include "platform/win32/Win32Control.h"

#include <algorithm>

#include "platform/forms/ControlHost.h"
#include "platform/win32/Win32Mouse.h"

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
                      (control_.IsUsable() ? 0 : WS_DISABLED) | (control_.IsTabStop() ? WS_TABSTOP : 0);
  const RECT place = PlaceInPixels();
  if (IsNamedByLabel() && !control_.NamingLabel()) AddSpokenLabel();
  window_ =
      CreateWindowExW(look_.extendedStyle, look_.windowClass, WindowText().c_str(), style, place.left,
                      place.top, place.right - place.left, place.bottom - place.top, site_.Window(),
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_)), GetModuleHandleW(nullptr), nullptr);
  GiveName(window_, control_.Name());
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Win32Control::ControlProc));
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(ChooseFont()), FALSE);
}

// A label that takes no space. Screen readers take the one right before a box for its name.
void Win32Control::AddSpokenLabel() const {
  const std::wstring name = control_.AccessibleName();
  if (name.empty()) return;
  CreateWindowExW(0, L"STATIC", name.c_str(), WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, site_.Window(), nullptr,
                  GetModuleHandleW(nullptr), nullptr);
}

void Win32Control::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      SetWindowTextW(window_, WindowText().c_str());
      break;
    case Aspect::Bounds:
      FitToForm();
      site_.PlacesChanged();
      if (!control_.IsUsable() && !control_.ToolTip().empty()) site_.RefreshToolTip(*this);
      break;
    case Aspect::Visible:
      if (!control_.IsShown()) PassFocusOn();
      ShowWindow(window_, control_.IsShown() ? SW_SHOWNA : SW_HIDE);
      site_.PlacesChanged();
      break;
    case Aspect::Enabled:
      if (!control_.IsUsable()) PassFocusOn();
      EnableWindow(window_, control_.IsUsable());
      if (!control_.ToolTip().empty()) site_.RefreshToolTip(*this);
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
  const RECT wanted = PlaceInPixels();
  RECT present;
  GetWindowRect(window_, &present);
  MapWindowPoints(nullptr, site_.Window(), reinterpret_cast<POINT*>(&present), 2);
  if (!EqualRect(&wanted, &present))
    SetWindowPos(window_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(ChooseFont()), IsWindowVisible(window_));
}

// Both edges are rounded, not the width: neighbours that touch in twips touch in pixels.
RECT Win32Control::PlaceInPixels() const {
  const UINT dpi = site_.Dpi();
  const Rect bounds = control_.BoundsOnForm();
  return {ToPixels(bounds.left, dpi), ToPixels(bounds.top, dpi), ToPixels(bounds.left + bounds.width, dpi),
          ToPixels(bounds.top + bounds.height, dpi)};
}

HFONT Win32Control::ChooseFont() {
  if (!control_.Font()) return site_.Font();
  font_ = CreateControlFont(*control_.Font(), site_.Dpi());
  return font_.get();
}

CaptionBox Win32Control::Caption() const {
  if (control_.Font() || control_.WrapsCaption()) return {};
  const UINT dpi = site_.Dpi();
  const auto scaled = [dpi](int pixelsAt96) { return MulDiv(pixelsAt96, static_cast<int>(dpi), 96); };
  return {.text = std::wstring(control_.CaptionText()),
          .width = ToPixels(control_.Bounds().width, dpi) - scaled(look_.aroundCaption.width),
          .height = ToPixels(control_.Bounds().height, dpi) - scaled(look_.aroundCaption.height)};
}

// A control that lies within another one, such as a label on the ground of a tab strip, keeps all of its
// place.
void Win32Control::YieldOverlaps() {
  const RECT place = PlaceInPixels();
  std::vector<RECT> taken;
  for (const Win32Control* other : site_.Neighbours()) {
    if (other->Claim() <= Claim() || !other->control_.IsShown()) continue;
    const RECT otherPlace = other->PlaceInPixels();
    RECT common;
    if (!IntersectRect(&common, &place, &otherPlace) || EqualRect(&common, &place)) continue;
    OffsetRect(&common, -place.left, -place.top);
    taken.push_back(common);
  }
  if (taken.empty() && !hasRegion_) return;
  hasRegion_ = !taken.empty();
  HRGN region =
      hasRegion_ ? CreateRectRgn(0, 0, place.right - place.left, place.bottom - place.top) : nullptr;
  for (const RECT& part : taken) {
    const Unique<HRGN, DeleteObject> cut(CreateRectRgnIndirect(&part));
    CombineRgn(region, region, cut.get(), RGN_DIFF);
  }
  SetWindowRgn(window_, region, TRUE);  // the system owns the region from here on
}

HBRUSH Win32Control::Paint(HDC surface) const {
  if (const auto letters = control_.ShownForeColor()) SetTextColor(surface, *letters);
  const std::optional<Color> own = control_.ShownBackColor();
  const std::optional<Color> ground = own ? own : site_.GroundColor();
  if (!ground) return nullptr;
  SetBkColor(surface, *ground);
  return brush_ ? brush_.get() : site_.Ground();
}

// Runs before the procedure of the window's class and stays in place when the control is gone: the tool tips
// subclass the window as well, and a procedure in the middle of that chain cannot be taken out. The system's
// own way to subclass looks up a property, which is a request to another process, for each message.
LRESULT CALLBACK Win32Control::ControlProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* control = reinterpret_cast<Win32Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!control) return PassToClass(window, message, wParam, lParam);
  // Each handler may unload the form, which then goes at the end of this function.
  const ControlHost::Hold hold(control->site_.Host());
  if (const auto mouse = ReadMouseMessage(message, wParam, lParam, control->site_.Dpi())) {
    const int popups = control->site_.PopupsShown();
    control->control_.UserMouse(mouse->action, mouse->event);
    // The popup menu has used up the press; the control must not wait for its end.
    if (control->site_.PopupsShown() != popups) return 0;
  }
  if (control->OnMessage(message)) return 0;
  const LRESULT result = control->Process(message, wParam, lParam);
  if (message == WM_SETFOCUS) {
    control->site_.FocusMoved();
    control->control_.UserEntered();
  } else if (message == WM_KILLFOCUS) {
    control->control_.UserLeft();
  }
  return result;
}

LRESULT Win32Control::PassToClass(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto ofClass = reinterpret_cast<WNDPROC>(GetClassLongPtrW(window, GCLP_WNDPROC));
  return CallWindowProcW(ofClass, window, message, wParam, lParam);
}

// A window that is disabled or hidden while it has the keyboard would keep it, and no key would arrive.
void Win32Control::PassFocusOn() {
  if (site_.FocusedControl() != window_) return;
  const HWND next = GetNextDlgTabItem(site_.Window(), window_, FALSE);
  site_.GiveFocus(next && next != window_ ? next : nullptr);
}

void Win32Control::MakeBrush() {
  const auto color = control_.ShownBackColor();
  brush_.reset(color ? CreateSolidBrush(*color) : nullptr);
}

}  // namespace troth
