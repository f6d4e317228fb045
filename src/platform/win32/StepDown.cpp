#include "platform/win32/StepDown.h"

#include "platform/win32/Win32Loop.h"

namespace troth {

bool IsTopMost(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

StepDown::StepDown(const Win32Loop& loop) {
  for (const LoopWindow* form : loop.Windows())
    if (IsTopMost(form->Window()) && IsWindowVisible(form->Window())) forms_.push_back(form->Window());
  for (const HWND form : forms_) SetWindowPos(form, HWND_NOTOPMOST, 0, 0, 0, 0, kStackingOnly);
}

// Some may have gone meanwhile.
StepDown::~StepDown() {
  for (const HWND form : forms_)
    if (IsWindow(form)) SetWindowPos(form, HWND_TOPMOST, 0, 0, 0, 0, kStackingOnly);
}

}  // namespace troth
