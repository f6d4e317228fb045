#include "platform/forms/Control.h"

#include <utility>

#include "platform/forms/ControlHost.h"

namespace troth {

Control::Control(ControlHost& host, Common common)
    : host_(host),
      name_(std::move(common.name)),
      toolTip_(std::move(common.toolTip)),
      bounds_(common.bounds),
      visible_(common.visible),
      enabled_(common.enabled),
      backColor_(common.backColor),
      foreColor_(common.foreColor),
      font_(std::move(common.font)) {
  host.Adopt(*this);
}

void Control::SetToolTip(std::wstring text) {
  if (text == toolTip_) return;
  toolTip_ = std::move(text);
  Refresh(Aspect::ToolTip);
}

Rect Control::BoundsOnForm() const {
  if (!container_) return bounds_;
  const Rect around = container_->BoundsOnForm();
  return {around.left + bounds_.left, around.top + bounds_.top, bounds_.width, bounds_.height};
}

void Control::SetBounds(const Rect& bounds) {
  if (bounds == bounds_) return;
  bounds_ = bounds;
  BoundsChanged();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  VisibleChanged();
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  EnabledChanged();
}

void Control::SetBackColor(std::optional<Color> color) {
  if (color == backColor_) return;
  backColor_ = color;
  Refresh(Aspect::Colors);
}

void Control::SetForeColor(std::optional<Color> color) {
  if (color == foreColor_) return;
  foreColor_ = color;
  Refresh(Aspect::Colors);
}

void Control::SetFocus() {
  if (peer_ && CanTakeFocus()) peer_->TakeFocus();
}

void Control::UserEntered() { host_.Raise(OnGotFocus); }

void Control::UserLeft() { host_.Raise(OnLostFocus); }

void Control::UserPressedKey(KeyPress& press) { host_.Raise(OnKeyDown, press); }

void Control::UserMouse(MouseAction action, const MouseEvent& event) {
  if (!IsShown() || !IsUsable()) return;
  const auto& slot = action == MouseAction::Down   ? OnMouseDown
                     : action == MouseAction::Move ? OnMouseMove
                                                   : OnMouseUp;
  host_.Raise(slot, event);
}

}  // namespace troth
