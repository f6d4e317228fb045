#include "platform/forms/ListBox.h"

#include <algorithm>
#include <compare>
#include <cwctype>
#include <string_view>

#include "platform/forms/ControlHost.h"

namespace troth {

namespace {

// The letters without their accents, from U+00C0 on; a blank where there is none to take away.
constexpr std::wstring_view kBaseLetters =
    L"AAAAAA CEEEEIIII NOOOOO  UUUUY  AAAAAA CEEEEIIII NOOOOO  UUUUY "
    L"YAAAAAACCCCCCCCDDDDEEEEEEEEEEGGGGGGGGHHHHIIIIIIIIII"
    L"  JJKK LLLLLLLLLLNNNNNN   OOOOOO  RRRRRRSSSSSSSSTTTTTTUUUUUUUUUUUUWWYYYZZZZZZ";

wchar_t BaseLetter(wchar_t c) {
  const auto capital = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
  if (c < 0xC0 || c >= 0xC0 + static_cast<int>(kBaseLetters.size())) return capital;
  const wchar_t base = kBaseLetters[static_cast<std::size_t>(c - 0xC0)];
  return base == L' ' ? capital : base;
}

// As the system's sorted lists compare: without regard to case, and accents count only between texts that are
// otherwise alike.
bool ComesBefore(const ListEntry& left, const ListEntry& right) {
  const auto compare = [&](auto key) {
    return std::lexicographical_compare_three_way(left.text.begin(), left.text.end(), right.text.begin(),
                                                  right.text.end(),
                                                  [&](wchar_t a, wchar_t b) { return key(a) <=> key(b); });
  };
  const auto byLetters = compare(BaseLetter);
  if (byLetters != 0) return byLetters < 0;
  return compare([](wchar_t c) { return std::towupper(static_cast<std::wint_t>(c)); }) < 0;
}

}  // namespace

ListBox::ListBox(ControlHost& host, ListBoxOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds,
                     .visible = options.visible,
                     .enabled = options.enabled,
                     .accessibleName = std::move(options.accessibleName)}),
      hasTicks_(options.hasTicks),
      isSorted_(options.isSorted),
      emptyText_(std::move(options.emptyText)) {}

void ListBox::SetEntries(std::vector<ListEntry> entries, int index) {
  const bool hadSelection = index_ >= 0;
  entries_ = std::move(entries);
  if (isSorted_) std::stable_sort(entries_.begin(), entries_.end(), ComesBefore);
  index_ = index < Count() ? index : -1;
  marked_ = -1;
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

void ListBox::SetMarked(int index) {
  if (index == marked_) return;
  marked_ = index;
  Refresh(Aspect::Mark);
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
