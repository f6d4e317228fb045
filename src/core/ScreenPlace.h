// The place of a window on the screen between two runs, in two settings. A window that none of today's
// monitors shows at its place comes up on the nearest one: its form sees to that when it is shown.
#pragma once

#include "platform/Geometry.h"

namespace troth {

class Form;
struct Platform;
struct Setting;

// Brings a place into the screen: low edges first, high edges second, so that a window larger than the screen
// ends at a negative place.
Point IntoScreen(Point place, Size window, Size screen);

// Moves the window to a place, brought into the screen, and returns that. The screen is the whole desktop,
// and begins with its main monitor.
Point MoveIntoScreen(const Platform& platform, Form& window, Point place);

// Moves the window to its stored place, brought into the screen, and returns that.
Point RestoreWithinScreen(const Platform& platform, Form& window, const Setting& left, const Setting& top);

// What becomes of a number beyond the far edge of the screen: the form comes back when it is shown, or the
// number counts as not stored.
enum class IfBeyond { ComesBack, IsNotStored };

// Moves the window to its stored place. A number below 0 means that none is stored, and that edge stays where
// it is.
void GoToStoredPlace(const Platform& platform, Form& window, const Setting& left, const Setting& top,
                     IfBeyond beyond = IfBeyond::ComesBack);

void StorePlace(const Platform& platform, const Form& window, const Setting& left, const Setting& top);

}  // namespace troth
