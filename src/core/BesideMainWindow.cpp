#include "core/BesideMainWindow.h"

#include "core/ScreenPlace.h"
#include "platform/Platform.h"
#include "platform/forms/Form.h"

namespace troth {

void GoBeside(const Platform& platform, Form& tool, const Form& main) {
  const Rect beside = OnScreen(platform.forms.Monitors(), main.OuterBounds());
  const Rect outer = tool.OuterBounds();
  const Point place = outer.height > outer.width ? Point{beside.left + beside.width, beside.top}
                                                 : Point{beside.left, beside.top + beside.height};
  MoveIntoScreen(platform, tool, place);
}

}  // namespace troth
