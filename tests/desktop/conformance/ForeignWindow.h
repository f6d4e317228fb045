// A window of "another program": it lives on a thread of its own, so that it takes its messages while the
// program under test sleeps, and writes down each character message. An ANSI window, as the game's is.
#pragma once

#include <windows.h>

#include <string>
#include <thread>
#include <vector>

#include "tests/platform/conformance/DesktopUnderTest.h"

namespace troth {

class ForeignWindow {
 public:
  // Returns when the window is there, shown but not active.
  explicit ForeignWindow(const std::wstring& className);
  ~ForeignWindow() { Close(); }
  ForeignWindow(const ForeignWindow&) = delete;
  ForeignWindow& operator=(const ForeignWindow&) = delete;

  HWND Window() const { return window_; }
  void Close();
  // Waits until the window has taken all that was posted to it so far.
  std::vector<DesktopUnderTest::Heard> Heard();

 private:
  void Run(HANDLE ready);
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  std::string className_;
  HWND window_ = nullptr;
  // Written by the window's thread alone; read when that thread has been waited for.
  std::vector<DesktopUnderTest::Heard> heard_;
  std::thread thread_;
};

}  // namespace troth
