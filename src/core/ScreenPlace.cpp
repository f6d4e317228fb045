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

Point RestoreWithinScreen(const Platform& platform, Form& window, const Setting& left, const Setting& top) {
  const Rect outer = window.OuterBounds();
  const Point place = IntoScreen({ReadWhole(platform, left), ReadWhole(platform, top)},
                                 {outer.width, outer.height}, platform.forms.Screen());
  window.MoveTo(place);
  return place;
}

void GoToStoredPlace(const Platform& platform, Form& window, const Setting& left, const Setting& top) {
  const int storedLeft = ReadWhole(platform, left);
  const int storedTop = ReadWhole(platform, top);
  const Rect outer = window.OuterBounds();
  window.MoveTo({storedLeft >= 0 ? storedLeft : outer.left, storedTop >= 0 ? storedTop : outer.top});
}

void StorePlace(const Platform& platform, const Form& window, const Setting& left, const Setting& top) {
  const Rect outer = window.OuterBounds();
  WriteWhole(platform, left, outer.left);
  WriteWhole(platform, top, outer.top);
}

}  // namespace troth
