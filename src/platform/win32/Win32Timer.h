// A timer of a form, driven by a timer of the form's window.
#pragma once

#include <vector>

#include "platform/forms/FormBackend.h"
#include "platform/win32/Win32.h"

namespace troth {

class Timer;

// The system's timer has the portable timer's address as its number, so that WM_TIMER finds it. A message
// that is still waiting when the timer ends finds it no more in `running`.
class Win32Timer final : public TimerPeer {
 public:
  Win32Timer(HWND window, Timer& timer, std::vector<Timer*>& running);
  ~Win32Timer() override;
  void Refresh() override;

 private:
  void Start();
  UINT_PTR Id() const { return reinterpret_cast<UINT_PTR>(&timer_); }

  HWND window_;
  Timer& timer_;
  std::vector<Timer*>& running_;
};

}  // namespace troth
