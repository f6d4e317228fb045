// Mouse messages of the system as the events of the portable layer.
#pragma once

#include <optional>

#include "platform/forms/Mouse.h"
#include "platform/win32/Win32.h"

namespace troth {

// Sum of kShiftDown, kControlDown and kAltDown as the keys are now.
int ShiftState();

struct MouseMessage {
  MouseAction action;
  MouseEvent event;
};

// Nothing for a message that is not of the mouse in a client area. The second press of a double click counts
// as none: its click does.
std::optional<MouseMessage> ReadMouseMessage(UINT message, WPARAM wParam, LPARAM lParam, UINT dpi);

}  // namespace troth
