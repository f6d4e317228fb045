#include "platform/forms/Control.h"

#include <algorithm>
#include <iterator>
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
      font_(std::move(common.font)),
      accessibleName_(std::move(common.accessibleName)) {
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

std::optional<Color> Control::ShownBackColor() const {
  return backColor_ && host_.UsesSystemColors() ? std::nullopt : backColor_;
}

std::optional<Color> Control::ShownForeColor() const {
  return foreColor_ && host_.UsesSystemColors() ? std::nullopt : foreColor_;
}

const Control* Control::NamingLabel() const {
  const auto& controls = host_.Controls();
  const auto here = std::find(controls.begin(), controls.end(), this);
  return here != controls.begin() && (*std::prev(here))->NamesNextControl() ? *std::prev(here) : nullptr;
}

// The "&" of a mnemonic is not read out.
std::wstring Control::AccessibleName() const {
  if (!accessibleName_.empty()) return accessibleName_;
  const Control* label = CaptionText().empty() ? NamingLabel() : this;
  if (!label) return toolTip_;
  std::wstring name(label->CaptionText());
  std::erase(name, L'&');
  return name;
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
