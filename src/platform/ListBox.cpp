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

void ListBox::SetEntries(std::vector<ListEntry> entries, int index) {
  const bool hadSelection = index_ >= 0;
  entries_ = std::move(entries);
  index_ = index < Count() ? index : -1;
  Refresh(Aspect::Entries);
  // The same number is another entry now.
  if (hadSelection || index_ >= 0) Host().Raise(OnClick);
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
  Host().Raise(OnTick, index);
}

void ListBox::UserDoubleClicked() { Host().Raise(OnDoubleClick); }

}  // namespace troth
