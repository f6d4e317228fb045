// What the mouse did on a form or a control.
#pragma once

#include "platform/Geometry.h"

namespace troth {

// The values are those of the system's common convention, so that a stored button is readable.
enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

enum class MouseAction { Down, Move, Up };

struct MouseEvent {
  MouseButton button = MouseButton::None;  // in a move: the one that is held
  int shift = 0;                           // sum of kShiftDown, kControlDown, kAltDown
  Point place;                             // in twips, within the control or the form's client area
};

}  // namespace troth
