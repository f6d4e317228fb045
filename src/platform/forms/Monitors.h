// Where windows stand on the monitors of a desktop. The backend lists the monitors, and what follows from
// them is decided here. A place on the screen is in twips at the scale of the main monitor, wherever it lies;
// the size of a window is in twips of its own.
#pragma once

#include <vector>

#include "platform/Geometry.h"

namespace troth {

struct Monitor {
  Rect area;
  Rect workArea;      // without task bars
  int percent = 100;  // how large windows are on it, in percent of their size on a place of the screen
};

// At least one. The first is the main one, whose upper left corner is the place {0, 0}.
using MonitorList = std::vector<Monitor>;

// So much of a window has to be seen for the user to find it, in twips.
inline constexpr int kLeastInSight = 100;

// From the upper left corner of the main monitor to the far edges of the whole desktop.
Size ScreenSize(const MonitorList& monitors);

// The monitor that shows most of a part of the screen, or else the nearest to it.
const Monitor& MonitorOf(const MonitorList& monitors, const Rect& part);

// The part of the screen that a window takes; `outer` has the size of the window in its own twips.
Rect OnScreen(const MonitorList& monitors, const Rect& outer);

// Where a window comes into sight: one that no monitor shows goes to the nearest, any other one stays.
Point IntoSight(const MonitorList& monitors, const Rect& outer);

// In the middle of a part of the screen, as far as the monitor there allows. Of a window that is larger than
// the monitor the upper left corner is seen.
Point CentredOver(const MonitorList& monitors, const Rect& part, Size window);

// Right below a window of another program, left edges in line. Below one that fills its monitor, maximised or
// without a frame, there is no room: then at the lower edge of the monitor.
Point RightBelow(const MonitorList& monitors, const Rect& other, Size window);

}  // namespace troth
