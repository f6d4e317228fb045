#include "core/ScreenPlace.h"

#include <algorithm>

#include "core/Settings.h"
#include "platform/Platform.h"
#include "platform/forms/Form.h"

namespace troth {

Point IntoScreen(Point place, Size window, Size screen) {
  return {std::min(std::max(place.left, 0), screen.width - window.width),
          std::min(std::max(place.top, 0), screen.height - window.height)};
}

Point MoveIntoScreen(const Platform& platform, Form& window, Point place) {
  const MonitorList monitors = platform.forms.Monitors();
  const Rect outer = window.OuterBounds();
  const Rect part = OnScreen(monitors, {place.left, place.top, outer.width, outer.height});
  place = IntoScreen(place, {part.width, part.height}, ScreenSize(monitors));
  window.MoveTo(place);
  return place;
}

Point RestoreWithinScreen(const Platform& platform, Form& window, const Setting& left, const Setting& top) {
  return MoveIntoScreen(platform, window, {ReadWhole(platform, left), ReadWhole(platform, top)});
}

void GoToStoredPlace(const Platform& platform, Form& window, const Setting& left, const Setting& top,
                     IfBeyond beyond) {
  const int storedLeft = ReadWhole(platform, left);
  const int storedTop = ReadWhole(platform, top);
  const Size screen = ScreenSize(platform.forms.Monitors());
  const bool takesAll = beyond == IfBeyond::ComesBack;
  const bool hasLeft = storedLeft >= 0 && (takesAll || storedLeft <= screen.width - kLeastInSight);
  const bool hasTop = storedTop >= 0 && (takesAll || storedTop < screen.height - kLeastInSight);
  const Rect outer = window.OuterBounds();
  window.MoveTo({hasLeft ? storedLeft : outer.left, hasTop ? storedTop : outer.top});
}

void StorePlace(const Platform& platform, const Form& window, const Setting& left, const Setting& top) {
  const Rect outer = window.OuterBounds();
  WriteWhole(platform, left, outer.left);
  WriteWhole(platform, top, outer.top);
}

}  // namespace troth
