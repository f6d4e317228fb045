#include "platform/forms/MenuItem.h"

namespace troth {

MenuItem::MenuItem(ControlHost& host, MenuItemOptions options)
    : host_(host),
      name_(std::move(options.name)),
      caption_(std::move(options.caption)),
      checked_(options.checked),
      enabled_(options.enabled),
      visible_(options.visible) {
  host.Adopt(*this);
}

MenuItem::MenuItem(MenuItem& parent, MenuItemOptions options)
    : host_(parent.host_),
      parent_(&parent),
      name_(std::move(options.name)),
      caption_(std::move(options.caption)),
      checked_(options.checked),
      enabled_(options.enabled),
      visible_(options.visible) {
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

void MenuItem::UserChose() {
  for (const MenuItem* item = this; item; item = item->parent_)
    if (!item->enabled_ || !item->visible_) return;
  host_.Raise(OnClick);
}

}  // namespace troth
