#include "platform/forms/ListBox.h"

#include <algorithm>
#include <cwctype>

#include "platform/forms/ControlHost.h"

namespace troth {

namespace {

bool ComesBefore(const ListEntry& left, const ListEntry& right) {
  return std::lexicographical_compare(
      left.text.begin(), left.text.end(), right.text.begin(), right.text.end(), [](wchar_t a, wchar_t b) {
        return std::towupper(static_cast<std::wint_t>(a)) < std::towupper(static_cast<std::wint_t>(b));
      });
}

}  // namespace

ListBox::ListBox(ControlHost& host, ListBoxOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds,
                     .visible = options.visible,
                     .enabled = options.enabled}),
      hasTicks_(options.hasTicks),
      isSorted_(options.isSorted),
      emptyText_(std::move(options.emptyText)) {}

void ListBox::SetEntries(std::vector<ListEntry> entries, int index) {
  const bool hadSelection = index_ >= 0;
  entries_ = std::move(entries);
  if (isSorted_) std::stable_sort(entries_.begin(), entries_.end(), ComesBefore);
  index_ = index < Count() ? index : -1;
  Refresh(Aspect::Entries);
  // The same number is another entry now.
  if (hadSelection || index_ >= 0) Host().Raise(OnClick);
}

void ListBox::Append(std::wstring text) {
  ListEntry entry{.text = std::move(text)};
  const auto place =
      isSorted_ ? std::upper_bound(entries_.begin(), entries_.end(), entry, ComesBefore) : entries_.end();
  if (place - entries_.begin() <= index_) ++index_;
  entries_.insert(place, std::move(entry));
  Refresh(Aspect::Entries);
}

void ListBox::Remove(int index) {
  if (index < 0 || index >= Count()) return;
  entries_.erase(entries_.begin() + index);
  const bool wasSelected = index == index_;
  if (wasSelected)
    index_ = -1;
  else if (index < index_)
    --index_;
  Refresh(Aspect::Entries);
  if (wasSelected) Host().Raise(OnClick);
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
