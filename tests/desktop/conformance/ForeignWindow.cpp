#include "tests/desktop/conformance/ForeignWindow.h"

#include <stdexcept>

namespace troth {

namespace {
constexpr UINT kFlush = WM_APP + 1;
constexpr DWORD kDeadlineMs = 5000;
}  // namespace

ForeignWindow::ForeignWindow(const std::wstring& className) {
  for (const wchar_t c : className) className_ += static_cast<char>(c);
  const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  thread_ = std::thread([this, ready] { Run(ready); });
  WaitForSingleObject(ready, kDeadlineMs);
  CloseHandle(ready);
}

void ForeignWindow::Close() {
  if (!thread_.joinable()) return;
  PostMessageA(window_, WM_CLOSE, 0, 0);
  thread_.join();
}

std::vector<DesktopUnderTest::Heard> ForeignWindow::Heard() {
  if (!thread_.joinable()) return heard_;
  const HANDLE flushed = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  PostMessageA(window_, kFlush, reinterpret_cast<WPARAM>(flushed), 0);
  const bool done = WaitForSingleObject(flushed, kDeadlineMs) == WAIT_OBJECT_0;
  CloseHandle(flushed);
  if (!done) throw std::runtime_error("the foreign window does not take its messages");
  return heard_;
}

void ForeignWindow::Run(HANDLE ready) {
  WNDCLASSA own{};
  own.lpfnWndProc = &ForeignWindow::WindowProc;
  own.hInstance = GetModuleHandleW(nullptr);
  own.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
  own.lpszClassName = className_.c_str();
  RegisterClassA(&own);
  window_ = CreateWindowExA(0, own.lpszClassName, "Some other title", WS_OVERLAPPEDWINDOW, 500, 400, 300, 200,
                            nullptr, nullptr, own.hInstance, nullptr);
  SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  ShowWindow(window_, SW_SHOWNOACTIVATE);
  SetEvent(ready);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  UnregisterClassA(own.lpszClassName, own.hInstance);
}

LRESULT CALLBACK ForeignWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<ForeignWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  switch (message) {
    case WM_CHAR:
      if (self) self->heard_.push_back({static_cast<unsigned>(wParam), LOWORD(lParam)});
      return 0;
    case kFlush:
      SetEvent(reinterpret_cast<HANDLE>(wParam));
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcA(window, message, wParam, lParam);
  }
}

}  // namespace troth
