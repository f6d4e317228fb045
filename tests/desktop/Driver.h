// The hand that drives a program from another process: starts it, finds its windows and controls by their
// names, reads them, clicks them, and answers its message boxes. Knows nothing of what the program is for.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/win32/Win32.h"
#include "tests/desktop/SystemWindows.h"

namespace troth::desktop {

using UniqueProcess = Unique<HANDLE, CloseHandle>;

// A message box as the user sees it.
struct Box {
  HWND window = nullptr;
  std::wstring title;
  std::wstring text;
};

// A started program. What is still running at the end of its scope is ended by force: nothing stays behind.
class Process {
 public:
  // Throws if the program cannot be started.
  explicit Process(const std::wstring& program, const std::vector<std::wstring>& arguments = {});
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  DWORD Id() const { return id_; }
  HANDLE Handle() const { return handle_.get(); }

  // Nothing if it goes on running for longer than patience lasts.
  std::optional<DWORD> ExitCode() const;

  // Its visible top-level windows, from the topmost to the lowest.
  std::vector<HWND> Windows() const;

  // The visible form of that name, or null.
  HWND FindForm(const std::wstring& name) const;

  // The message box that is up, complete with its button, or nothing.
  std::optional<Box> FindBox() const;

 private:
  UniqueProcess handle_;
  DWORD id_ = 0;
};

// The control of that name anywhere on the form, or null.
HWND FindNamed(HWND form, const std::wstring& name);
// The windows that stand directly on the form, in tab order.
std::vector<HWND> ControlsOn(HWND form);

// A message with an answer. Throws if the program does not answer: it hangs or is gone.
LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

bool IsTopMost(HWND window);
std::wstring TextOf(HWND window);
// The upper left corner on the screen, and the size with the frame.
POINT CornerOf(HWND window);
SIZE SizeOf(HWND window);
bool IsTicked(HWND checkBox);

// Posted, since the click may open a box that waits for an answer.
void ClickButton(HWND button);
// Presses the box's only button.
void PressOk(const Box& box);

// Bits of the answer about a menu item.
inline constexpr LRESULT kMenuKnown = 1;
inline constexpr LRESULT kMenuChecked = 2;
inline constexpr LRESULT kMenuEnabled = 4;
inline constexpr LRESULT kMenuVisible = 8;
LRESULT MenuState(HWND form, const std::wstring& item);
void ChooseMenu(HWND form, const std::wstring& item);

// The control that has the keyboard in the program that owns the window, or null.
HWND FocusOf(HWND window);

}  // namespace troth::desktop
