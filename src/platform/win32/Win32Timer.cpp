#include "platform/win32/Win32Timer.h"

#include "platform/forms/Timer.h"

namespace troth {

Win32Timer::Win32Timer(HWND window, Timer& timer, std::vector<Timer*>& running)
    : window_(window), timer_(timer), running_(running) {
  running_.push_back(&timer_);
  Start();
}

Win32Timer::~Win32Timer() {
  KillTimer(window_, Id());
  std::erase(running_, &timer_);
}

void Win32Timer::Refresh() {
  KillTimer(window_, Id());
  Start();
}

void Win32Timer::Start() {
  if (timer_.Enabled() && timer_.IntervalMs() > 0)
    SetTimer(window_, Id(), static_cast<UINT>(timer_.IntervalMs()), nullptr);
}

}  // namespace troth
