// Brings a stored place of a window into the screen.
#pragma once

#include "platform/Geometry.h"

namespace troth {

// Low edges first, high edges second: a window larger than the screen ends at a negative place.
Point IntoScreen(Point place, Size window, Size screen);

}  // namespace troth
