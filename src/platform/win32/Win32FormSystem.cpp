// The part of Win32Form that deals with the desktop around it: its place among the monitors, their scale, the
// theme, and the end of the session.
#include "platform/win32/Win32Form.h"

#include "platform/forms/Form.h"
#include "platform/win32/Win32FormStyle.h"

namespace troth {

Rect Win32Form::OuterBounds() const {
  RECT outer;
  GetWindowRect(window_, &outer);
  if (IsIconic(window_)) outer = RestoredPlace();
  const UINT screenDpi = GetDpiForSystem();
  return {ToTwips(outer.left, screenDpi), ToTwips(outer.top, screenDpi),
          ToTwips(outer.right - outer.left, dpi_), ToTwips(outer.bottom - outer.top, dpi_)};
}

// A minimised window lies far off the screen; what counts is where it comes back to. The system gives that
// place in coordinates of the work area, which a task bar at the top or left shifts, except for a tool
// window.
RECT Win32Form::RestoredPlace() const {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(window_, &placement);
  RECT place = placement.rcNormalPosition;
  if (GetWindowLongW(window_, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) return place;
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  if (GetMonitorInfoW(MonitorFromWindow(window_, MONITOR_DEFAULTTONEAREST), &monitor))
    OffsetRect(&place, monitor.rcWork.left - monitor.rcMonitor.left,
               monitor.rcWork.top - monitor.rcMonitor.top);
  return place;
}

// A monitor with another scale changes the size of the window that comes to it, and the system may move the
// window while it does so: then it goes to its place once more.
void Win32Form::MoveTo(Point topLeft) {
  const UINT screenDpi = GetDpiForSystem();
  const POINT wanted{ToPixels(topLeft.left, screenDpi), ToPixels(topLeft.top, screenDpi)};
  const auto move = [&] {
    SetWindowPos(window_, nullptr, wanted.x, wanted.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  };
  RECT outer;
  GetWindowRect(window_, &outer);
  if (outer.left == wanted.x && outer.top == wanted.y) return;
  const UINT before = dpi_;
  move();
  if (dpi_ != before) move();
}

// Where the frame must stand for the client area to have its size at the present DPI. The menu may need more
// than one line, which only the window itself can tell.
RECT Win32Form::OuterRectangle() const {
  if (outerSize_) return {0, 0, ToPixels(outerSize_->width, dpi_), ToPixels(outerSize_->height, dpi_)};
  const Size client = form_.Options().clientSize;
  RECT outer{0, 0, ToPixels(client.width, dpi_), ToPixels(client.height, dpi_)};
  AdjustWindowRectExForDpi(&outer, StyleOf(form_.Options()), menu_.IsShown(),
                           ExtendedStyleOf(form_.Options()), monitorDpi_);
  return outer;
}

void Win32Form::FitFrame() {
  const RECT outer = OuterRectangle();
  SetWindowPos(window_, nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The system asks all programs before it ends the session, and shows the user who wants to be waited for. The
// question itself comes afterwards, since the system waits for this answer.
LRESULT Win32Form::OnQueryEndSession() {
  const std::wstring reason = form_.UserEndsSession();
  if (reason.empty()) return TRUE;
  ShutdownBlockReasonCreate(window_, reason.c_str());
  PostMessageW(window_, kSessionWaits, 0, 0);
  return FALSE;
}

// The form may be gone afterwards, and the reason with it.
void Win32Form::OnSessionWaits() {
  const HWND window = window_;
  form_.SessionWaits();
  ShutdownBlockReasonDestroy(window);
}

// The message comes past the queue: the loop, which waits at the queue, has to look whether a form is left.
void Win32Form::OnEndSession(bool ends) {
  if (!ends) return form_.SessionGoesOn();
  form_.SessionEnds();
  PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0);
}

LRESULT Win32Form::OnDpiChanged(WPARAM wParam, LPARAM lParam) {
  monitorDpi_ = LOWORD(wParam);
  const auto* suggested = reinterpret_cast<const RECT*>(lParam);
  FitToScale({suggested->left, suggested->top});
  return 0;
}

void Win32Form::FitToScale(POINT place) {
  dpi_ = loop_.LayoutDpi(monitorDpi_);
  const RECT outer = OuterRectangle();
  SetWindowPos(window_, nullptr, place.x, place.y, outer.right - outer.left, outer.bottom - outer.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  ChooseFont();
  for (Win32Control* control : controls_) control->FitToForm();
}

// Another theme, a contrast theme among them, or another size of the text. The system says so to the windows
// of forms only.
void Win32Form::OnLookChanged(UINT message, WPARAM wParam, LPARAM lParam) {
  for (Win32Control* control : controls_) {
    SendMessageW(control->Window(), message, wParam, lParam);
    control->Refresh(Aspect::Colors);
  }
  RefreshBackColor();
  loop_.ReadTextSize();
  if (loop_.LayoutDpi(monitorDpi_) == dpi_ || IsIconic(window_)) return;
  RECT outer;
  GetWindowRect(window_, &outer);
  FitToScale({outer.left, outer.top});
}

}  // namespace troth
