#include "platform/forms/MenuItem.h"

#include <algorithm>

#include "platform/forms/Control.h"

namespace troth {

MenuItem::MenuItem(ControlHost& host, MenuItemOptions options)
    : host_(host),
      name_(std::move(options.name)),
      caption_(std::move(options.caption)),
      checked_(options.checked),
      enabled_(options.enabled),
      visible_(options.visible),
      shortcut_(options.shortcut) {
  host.Adopt(*this);
}

MenuItem::MenuItem(MenuItem& parent, MenuItemOptions options)
    : host_(parent.host_),
      parent_(&parent),
      name_(std::move(options.name)),
      caption_(std::move(options.caption)),
      checked_(options.checked),
      enabled_(options.enabled),
      visible_(options.visible),
      shortcut_(options.shortcut) {
  parent.children_.push_back(this);
}

void MenuItem::SetCaption(std::wstring caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  host_.MenuChanged(*this);
}

void MenuItem::SetChecked(bool checked) {
  if (checked == checked_) return;
  checked_ = checked;
  host_.MenuChanged(*this);
}

void MenuItem::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  host_.MenuChanged(*this);
}

void MenuItem::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  host_.MenuChanged(*this);
}

std::wstring MenuItem::CaptionWithShortcut() const {
  if (shortcut_.keyCode == 0) return caption_;
  std::wstring keys;
  if (shortcut_.shift & kControlDown) keys += L"Ctrl+";
  if (shortcut_.shift & kAltDown) keys += L"Alt+";
  if (shortcut_.shift & kShiftDown) keys += L"Shift+";
  return caption_ + L'\t' + keys + static_cast<wchar_t>(shortcut_.keyCode);
}

// A top-level menu that is hidden from the bar may come up as a popup menu, so its own visibility does not
// count.
bool MenuItem::CanBeChosen() const {
  for (const MenuItem* item = this; item; item = item->parent_)
    if (!item->enabled_ || (!item->visible_ && item->parent_)) return false;
  return true;
}

void MenuItem::UserChose() {
  if (CanBeChosen()) host_.Raise(OnClick);
}

bool MenuItem::UserPressedShortcut(const Shortcut& shortcut) {
  if (shortcut_ == shortcut && CanBeChosen()) {
    UserChose();
    return true;
  }
  return std::any_of(children_.begin(), children_.end(),
                     [&](MenuItem* child) { return child->UserPressedShortcut(shortcut); });
}

}  // namespace troth
