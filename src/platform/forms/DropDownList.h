// A box that shows one entry of a list, which drops down for the choice of another. Takes only its entries.
// OnClick follows every change of the index, by the user or by the program; setting the index that already
// stands is none.
#pragma once

#include <vector>

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct DropDownListOptions {
  std::wstring name;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
};

class DropDownList final : public Control {
 public:
  DropDownList(ControlHost& host, DropDownListOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .enabled = options.enabled}) {}

  const std::vector<std::wstring>& Entries() const { return entries_; }
  int Count() const { return static_cast<int>(entries_.size()); }

  // Nothing is selected afterwards.
  void SetEntries(std::vector<std::wstring> entries) {
    entries_ = std::move(entries);
    const bool hadSelection = index_ >= 0;
    index_ = -1;
    Refresh(Aspect::Entries);
    if (hadSelection) Host().Raise(OnClick);
  }

  // 0-based; -1 while nothing is selected. Setting an index that does not exist selects nothing.
  int Index() const { return index_; }
  void SetIndex(int index) {
    if (index < 0 || index >= Count()) index = -1;
    if (index == index_) return;
    index_ = index;
    Refresh(Aspect::Index);
    Host().Raise(OnClick);
  }

  std::function<void()> OnClick;

  // --- Called by the backend only. ---
  void UserSelected(int index) {
    if (index < 0 || index >= Count() || index == index_) return;
    index_ = index;
    Host().Raise(OnClick);
  }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::vector<std::wstring> entries_;
  int index_ = -1;
};

}  // namespace troth
