// The least that a program with a global hotkey can do: F11 posts one character to the game. The baseline for
// the way from a press to the first character.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  WNDCLASSW bare{};
  bare.lpfnWndProc = &DefWindowProcW;
  bare.hInstance = instance;
  bare.lpszClassName = L"BareHotkey";
  RegisterClassW(&bare);
  const HWND window = CreateWindowExW(0, bare.lpszClassName, L"Bare hotkey", WS_OVERLAPPEDWINDOW, 0, 400, 200,
                                      100, nullptr, nullptr, instance, nullptr);
  RegisterHotKey(window, 1, 0, VK_F11);
  ShowWindow(window, SW_SHOWNOACTIVATE);
  for (MSG message; IsWindow(window) && GetMessageW(&message, nullptr, 0, 0) > 0;) {
    if (message.message == WM_HOTKEY)
      PostMessageA(FindWindowA("Kestrel Moors", nullptr), WM_CHAR, 'x', 1);
    else
      DispatchMessageW(&message);
  }
  return 0;
}
