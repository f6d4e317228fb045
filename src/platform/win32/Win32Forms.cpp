#include "platform/win32/Win32Forms.h"

#include <commctrl.h>

#include "platform/win32/Win32Form.h"

namespace troth {

namespace {

BOOL CALLBACK Collect(HMONITOR monitor, HDC, RECT*, LPARAM list) {
  reinterpret_cast<std::vector<HMONITOR>*>(list)->push_back(monitor);
  return TRUE;
}

Rect ToScreen(const RECT& place) {
  const UINT dpi = GetDpiForSystem();
  return {ToTwips(place.left, dpi), ToTwips(place.top, dpi), ToTwips(place.right - place.left, dpi),
          ToTwips(place.bottom - place.top, dpi)};
}

UINT DpiOf(HMONITOR monitor) {
  constexpr int kEffectiveDpi = 0;
  static const auto ask =
      LateFunction<HRESULT WINAPI(HMONITOR, int, UINT*, UINT*)>(L"shcore.dll", "GetDpiForMonitor");
  UINT across = GetDpiForSystem(), down = 0;
  if (ask) ask(monitor, kEffectiveDpi, &across, &down);
  return across;
}

}  // namespace

Win32Forms::Win32Forms(Win32Loop& loop) : loop_(loop) {
  const INITCOMMONCONTROLSEX classes{
      sizeof classes, ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_LINK_CLASS};
  InitCommonControlsEx(&classes);
}

std::unique_ptr<FormPeer> Win32Forms::Create(Form& form) { return std::make_unique<Win32Form>(loop_, form); }

void Win32Forms::RunUntilLastFormIsGone() {
  while (!loop_.Windows().empty()) loop_.ServeNext();
}

// The scale of a monitor matters only where there are several; the library that knows it is not loaded for
// one.
MonitorList Win32Forms::Monitors() const {
  std::vector<HMONITOR> handles;
  EnumDisplayMonitors(nullptr, nullptr, Collect, reinterpret_cast<LPARAM>(&handles));
  MonitorList monitors;
  for (const HMONITOR handle : handles) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!GetMonitorInfoW(handle, &info)) continue;
    const UINT dpi = handles.size() > 1 ? DpiOf(handle) : GetDpiForSystem();
    const Monitor monitor{
        .area = ToScreen(info.rcMonitor),
        .workArea = ToScreen(info.rcWork),
        .percent = MulDiv(100, static_cast<int>(loop_.LayoutDpi(dpi)), static_cast<int>(GetDpiForSystem()))};
    monitors.insert(info.dwFlags & MONITORINFOF_PRIMARY ? monitors.begin() : monitors.end(), monitor);
  }
  // The moment in which a monitor is unplugged can leave none.
  if (monitors.empty()) {
    const Rect area = ToScreen({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    monitors.push_back({.area = area, .workArea = area});
  }
  return monitors;
}

Rect Win32Forms::FromPixels(const PixelRect& place) const {
  return ToScreen({place.left, place.top, place.right, place.bottom});
}

bool Win32Forms::HasContrastTheme() const {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

const Form* Win32Forms::ActiveForm() const {
  const LoopWindow* active = loop_.FormOf(GetActiveWindow());
  return active ? &active->Portable() : nullptr;
}

}  // namespace troth
