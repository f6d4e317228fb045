// The tool tips of one form. Their window has no owner: a form that owned a topmost tool tip could not be
// made topmost again.
#pragma once

#include "platform/win32/Win32Control.h"

namespace troth {

class Win32ToolTips {
 public:
  // Made for `form` at `dpi`; shows nothing yet.
  void Create(HWND form, UINT dpi);
  bool Exists() const { return window_ != nullptr; }
  // Takes the text from the control as it is now; an empty one removes the tip.
  void Refresh(const Win32Control& control);

 private:
  HWND form_ = nullptr;
  UniqueWindow window_;
};

}  // namespace troth
