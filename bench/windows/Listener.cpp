#include "bench/windows/Listener.h"

#include <utility>

#include "bench/windows/Measure.h"

namespace troth::bench {

Listener::Listener(std::string windowClass, bool isShown)
    : windowClass_(std::move(windowClass)), isShown_(isShown), thread_([this] { Run(); }) {
  while (!window_) Sleep(1);
}

Listener::~Listener() {
  PostMessageA(window_, WM_QUIT, 0, 0);
  thread_.join();
}

LRESULT CALLBACK Listener::Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* listener = reinterpret_cast<Listener*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (message != WM_CHAR || !listener) return DefWindowProcA(window, message, wParam, lParam);
  if (listener->heard_ == 0) listener->firstHeardMs_ = NowMs();
  ++listener->heard_;
  return 0;
}

void Listener::Run() {
  WNDCLASSA listener{};
  listener.lpfnWndProc = &Listen;
  listener.hInstance = GetModuleHandleW(nullptr);
  listener.lpszClassName = windowClass_.c_str();
  RegisterClassA(&listener);
  const HWND window = CreateWindowExA(0, windowClass_.c_str(), "", WS_OVERLAPPEDWINDOW, 600, 40, 400, 300,
                                      nullptr, nullptr, listener.hInstance, nullptr);
  SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  if (isShown_) ShowWindow(window, SW_SHOWNORMAL);
  window_ = window;
  for (MSG message; GetMessageA(&message, nullptr, 0, 0) > 0;) DispatchMessageA(&message);
  DestroyWindow(window);
}

}  // namespace troth::bench
