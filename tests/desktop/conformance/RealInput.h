// The hands of the person at the real desktop: keys through the system's input queue, the mouse through
// messages to the window under it, and the certainty that what was done has been dealt with.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/TimeService.h"

namespace troth {

class RealInput {
 public:
  explicit RealInput(TimeService& time);
  ~RealInput();
  RealInput(const RealInput&) = delete;
  RealInput& operator=(const RealInput&) = delete;

  // Serves messages until all that is waiting now has been served and the active window is in front.
  void Settle();
  // Fails with `what` after some seconds.
  void PumpUntil(const std::function<bool()>& done, const std::string& what);

  // Makes the window the active one if it is not.
  void Activate(HWND window);
  // Left button at a point of the window's client area. Throws where no click would arrive.
  void Click(HWND window, POINT point);
  void RightClick(HWND window, POINT point);
  void DoubleClick(HWND window, POINT point);

  void Press(int keyCode, int shift);
  void Type(std::wstring_view text);
  // Returns at once: for a menu, whose own loop takes the keys.
  void PressInMenu(const std::vector<int>& keyCodes);

 private:
  static LRESULT CALLBACK SeeMessage(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Reach(HWND window);
  void TakeForeground();
  void Send(std::vector<INPUT> inputs);

  TimeService& time_;
  HWND marker_ = nullptr;
  HHOOK hook_ = nullptr;
  HWND settledWindow_ = nullptr;
  LPARAM markersSent_ = 0;
  LPARAM markersSeen_ = 0;
  int markerKeysSent_ = 0;
  int markerKeysSeen_ = 0;
};

}  // namespace troth
