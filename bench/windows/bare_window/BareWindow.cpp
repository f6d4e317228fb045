// The least that a program with a window can be: the baseline for the start of the real one.
#include <windows.h>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int showCommand) {
  WNDCLASSW bare{};
  bare.lpfnWndProc = &Procedure;
  bare.hInstance = instance;
  bare.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  bare.lpszClassName = L"BareWindow";
  RegisterClassW(&bare);
  const HWND window = CreateWindowExW(0, bare.lpszClassName, L"Bare", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                      CW_USEDEFAULT, 560, 280, nullptr, nullptr, instance, nullptr);
  ShowWindow(window, showCommand);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) DispatchMessageW(&message);
  return 0;
}
