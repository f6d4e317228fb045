// A window on a thread of its own that takes characters as the game does, counts them and notes when they
// came.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

namespace troth::bench {

class Listener {
 public:
  // A shown one is a window that can have the keyboard.
  explicit Listener(std::string windowClass, bool isShown = false);
  ~Listener();
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  HWND Window() const { return window_; }
  int Heard() const { return heard_; }
  // When the first character behind `ListenAnew` came.
  double FirstHeardMs() const { return firstHeardMs_; }
  void ListenAnew() { heard_ = 0; }

 private:
  static LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Run();

  std::string windowClass_;
  bool isShown_;
  std::atomic<HWND> window_ = nullptr;
  std::atomic<int> heard_ = 0;
  std::atomic<double> firstHeardMs_ = 0;
  std::thread thread_;
};

}  // namespace troth::bench
