#include "platform/forms/OptionButton.h"

#include <algorithm>

namespace troth {

OptionButton::OptionButton(ControlHost& host, OptionButtonOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds,
                     .visible = options.visible,
                     .enabled = options.enabled}),
      caption_(std::move(options.caption)),
      selected_(options.isSelected) {}

void OptionButton::SetCaption(std::wstring caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Refresh(Aspect::Caption);
}

void OptionButton::Select() {
  if (selected_) return;
  selected_ = true;
  for (OptionButton* other : Group()) {
    if (other != this) other->selected_ = false;
    other->Refresh(Aspect::Value);
  }
  Host().Raise(OnClick);
}

bool OptionButton::IsTabStop() const {
  if (selected_) return true;
  const auto group = Group();
  return std::none_of(group.begin(), group.end(), [](const OptionButton* other) {
    return other->selected_ && other->IsShown() && other->IsUsable();
  });
}

void OptionButton::UserClicked() {
  if (IsShown() && IsUsable()) Select();
}

void OptionButton::UserPressedArrow(bool forward) {
  const auto group = Group();
  const auto count = group.size();
  const auto here = static_cast<std::size_t>(std::find(group.begin(), group.end(), this) - group.begin());
  for (std::size_t step = 1; step < count; ++step) {
    OptionButton* next = group[(here + (forward ? step : count - step)) % count];
    if (!next->IsShown() || !next->IsUsable()) continue;
    const ControlHost::Hold hold(Host());
    next->Select();
    next->SetFocus();
    return;
  }
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* control : Host().Controls())
    if (control->Container() == Container())
      if (auto* option = dynamic_cast<OptionButton*>(control)) group.push_back(option);
  return group;
}

}  // namespace troth
