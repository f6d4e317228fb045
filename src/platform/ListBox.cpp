#include "platform/ListBox.h"

#include "platform/ControlHost.h"

namespace troth {

ListBox::ListBox(ControlHost& host, ListBoxOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds,
                     .visible = options.visible,
                     .enabled = options.enabled}),
      hasTicks_(options.hasTicks) {}

void ListBox::SetEntries(std::vector<ListEntry> entries) {
  const bool deselects = index_ >= 0;
  index_ = -1;
  entries_ = std::move(entries);
  Refresh(Aspect::Entries);
  if (deselects) Host().Raise(OnClick);
}

void ListBox::Append(std::wstring text) {
  entries_.push_back({.text = std::move(text)});
  Refresh(Aspect::Entries);
}

void ListBox::SetIndex(int index) {
  if (index < 0 || index >= Count()) index = -1;
  if (index == index_) return;
  index_ = index;
  Refresh(Aspect::Index);
  Host().Raise(OnClick);
}

void ListBox::SetTicked(int index, bool ticked) {
  ListEntry& entry = entries_.at(static_cast<std::size_t>(index));
  if (ticked == entry.ticked) return;
  entry.ticked = ticked;
  Refresh(Aspect::Ticks);
}

void ListBox::UserSelected(int index) {
  if (index < 0 || index >= Count() || index == index_) return;
  index_ = index;
  Host().Raise(OnClick);
}

void ListBox::UserToggledTick(int index) {
  if (!hasTicks_ || index < 0 || index >= Count()) return;
  SetTicked(index, !Ticked(index));
  Host().Raise(OnClick);
}

void ListBox::UserDoubleClicked() { Host().Raise(OnDoubleClick); }

}  // namespace troth
