// A list of texts, at most one of them selected, each with a tick box if the list was made so. Built for
// tens of thousands of entries: the desktop shows them from here and keeps no copy.
//
// OnClick follows every change of the index, by the user or by the program; clearing or replacing a list
// whose entry was selected is such a change, and setting the index that already stands is none. OnTick
// follows every tick that the user sets or clears, with the index of its entry; a tick leaves the selection
// where it is. Ticks set by the program raise nothing.
#pragma once

#include <vector>

#include "platform/forms/Control.h"

namespace troth {

struct ListEntry {
  std::wstring text;
  bool ticked = false;
};

struct ListBoxOptions {
  std::wstring name;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
  bool hasTicks = false;
  bool isSorted = false;             // by text, capital and small letters alike
  std::wstring emptyText = {};       // what the list says, in grey, while it is empty
  std::wstring accessibleName = {};  // where no label stands before the list
};

class ListBox final : public Control {
 public:
  ListBox(ControlHost& host, ListBoxOptions options);

  bool HasTicks() const { return hasTicks_; }
  const std::wstring& EmptyText() const { return emptyText_; }

  int Count() const { return static_cast<int>(entries_.size()); }
  const std::wstring& Text(int index) const { return At(index).text; }

  // Replacing the whole content at once is the fast way to fill. `index` is selected afterwards, without a
  // moment in between at which nothing is; in a sorted list it counts the sorted entries.
  void SetEntries(std::vector<ListEntry> entries, int index = -1);
  void Append(std::wstring text);
  // The selected entry stays selected unless it is the one that goes.
  void Remove(int index);
  void Clear() { SetEntries({}); }

  // 0-based; -1 while nothing is selected. Setting an index that does not exist selects nothing.
  int Index() const { return index_; }
  void SetIndex(int index);

  // The entry that the program is busy with, shown apart from the others and kept in view, or -1. Touches
  // neither the index nor a tick, and raises nothing.
  int Marked() const { return marked_; }
  void SetMarked(int index);

  bool Ticked(int index) const { return At(index).ticked; }
  void SetTicked(int index, bool ticked);

  std::function<void()> OnClick;
  std::function<void(int index)> OnTick;
  std::function<void()> OnDoubleClick;

  // --- Called by the backend only. ---
  void UserSelected(int index);
  void UserToggledTick(int index);
  void UserDoubleClicked();

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }
  const ListEntry& At(int index) const { return entries_.at(static_cast<std::size_t>(index)); }

  std::vector<ListEntry> entries_;
  int index_ = -1;
  int marked_ = -1;
  bool hasTicks_;
  bool isSorted_;
  std::wstring emptyText_;
};

}  // namespace troth
