// The place of a window on the screen between two runs, in two settings.
#pragma once

#include "platform/Geometry.h"

namespace troth {

class Form;
struct Platform;
struct Setting;

// Brings a place into the screen: low edges first, high edges second, so that a window larger than the screen
// ends at a negative place.
Point IntoScreen(Point place, Size window, Size screen);

// Moves the window to its stored place, brought into the screen, and returns that.
Point RestoreWithinScreen(const Platform& platform, Form& window, const Setting& left, const Setting& top);

// Moves the window to its stored place, wherever that is. A number below 0 means that none is stored, and
// that edge stays where it is.
void GoToStoredPlace(const Platform& platform, Form& window, const Setting& left, const Setting& top);

void StorePlace(const Platform& platform, const Form& window, const Setting& left, const Setting& top);

}  // namespace troth
