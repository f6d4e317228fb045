// The message loop of the program, shared by its forms, its waits and its modal windows, and the question
// which form takes input.
#pragma once

#include <vector>

#include "platform/win32/FormFont.h"
#include "platform/win32/Win32.h"

namespace troth {

class Form;

// A form as the loop sees it.
class LoopWindow {
 public:
  virtual HWND Window() const = 0;
  virtual const Form& Portable() const = 0;

  // Looks at a key before the system's own keyboard habits do. True if the message is done with.
  virtual bool TakeKey(const MSG& message) = 0;

 protected:
  ~LoopWindow() = default;
};

class InputLock;

class Win32Loop {
 public:
  Win32Loop() = default;
  ~Win32Loop() { DestroyBuried(0); }
  Win32Loop(const Win32Loop&) = delete;
  Win32Loop& operator=(const Win32Loop&) = delete;

  // A form that is made while a modal one is up is as blocked as the rest.
  void Add(LoopWindow& window);
  void Remove(LoopWindow& window) { std::erase(windows_, &window); }
  const std::vector<LoopWindow*>& Windows() const { return windows_; }

  // The DPI at which forms are laid out on a monitor: larger text makes the whole form larger, so that it
  // still fits.
  UINT LayoutDpi(UINT monitorDpi) const {
    return static_cast<UINT>(MulDiv(static_cast<int>(monitorDpi), textPercent_, 100));
  }
  void ReadTextSize() { textPercent_ = TextSizePercent(); }

  // The form that `window` is or belongs to, or null.
  LoopWindow* FormOf(HWND window) const;

  // Waits for a message and serves it.
  void ServeNext();

  // Serves what is waiting; if nothing is, waits up to `waitMs` for a message first.
  void Pump(int waitMs);

  // Destroys the window when the message that is being served has been left: user32 is still inside the
  // window's code when a handler takes its form down.
  void Bury(HWND window) { graveyard_.push_back(window); }

 private:
  friend class InputLock;
  void Serve(MSG& message);
  bool ServeWaiting();
  void DestroyBuried(std::size_t from);

  std::vector<LoopWindow*> windows_;
  std::vector<HWND> graveyard_;
  std::vector<InputLock*> locks_;
  int textPercent_ = TextSizePercent();
};

// While it lives, no form but `free` takes input. Its end gives the input back to those that had it.
class InputLock {
 public:
  InputLock(Win32Loop& loop, const LoopWindow* free);
  ~InputLock();
  InputLock(const InputLock&) = delete;
  InputLock& operator=(const InputLock&) = delete;

 private:
  friend class Win32Loop;
  void Lock(const LoopWindow& form);
  bool IsAlive(const LoopWindow* form) const;

  Win32Loop& loop_;
  const LoopWindow* free_;
  bool freed_ = false;  // the free form was locked by an outer lock
  std::vector<const LoopWindow*> locked_;
};

}  // namespace troth
