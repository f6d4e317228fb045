#include "core/ScreenPlace.h"

#include <algorithm>

namespace troth {

Point IntoScreen(Point place, Size window, Size screen) {
  return {std::min(std::max(place.left, 0), screen.width - window.width),
          std::min(std::max(place.top, 0), screen.height - window.height)};
}

}  // namespace troth
