// The style bits of a form's window as its options ask for them.
#pragma once

#include "platform/forms/Form.h"
#include "platform/win32/Win32.h"

namespace troth {

inline DWORD ExtendedStyleOf(const FormOptions& options) {
  switch (options.border) {
    case BorderStyle::FixedDialog:
      return WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME;
    case BorderStyle::FixedTool:
      return WS_EX_CONTROLPARENT | WS_EX_TOOLWINDOW;
    default:
      return WS_EX_CONTROLPARENT;
  }
}

inline DWORD StyleOf(const FormOptions& options) {
  const DWORD base = WS_OVERLAPPED | WS_CAPTION | WS_CLIPCHILDREN | (options.hasCloseBox ? WS_SYSMENU : 0u);
  return options.border == BorderStyle::FixedSingle ? base | WS_MINIMIZEBOX : base;
}

}  // namespace troth
