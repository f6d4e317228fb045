// A row of tabs over a common ground, one of them selected. What a tab leads to stands in a frame over that
// ground, which the owner shows. OnClick follows every change of the index, by the user or by the program.
#pragma once

#include <vector>

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct Tab {
  std::wstring caption;
  std::wstring toolTip;
};

struct TabStripOptions {
  std::wstring name;
  Rect bounds;  // the tabs and the ground below them
  std::vector<Tab> tabs;
  std::wstring accessibleName;
};

class TabStrip final : public Control {
 public:
  TabStrip(ControlHost& host, TabStripOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = {},
                       .bounds = options.bounds,
                       .accessibleName = std::move(options.accessibleName)}),
        tabs_(std::move(options.tabs)) {}

  const std::vector<Tab>& Tabs() const { return tabs_; }

  // 0-based; the first tab is selected at the start. An index that does not exist changes nothing.
  int Index() const { return index_; }
  void SetIndex(int index) {
    if (!Take(index)) return;
    Refresh(Aspect::Index);
    Host().Raise(OnClick);
  }

  std::function<void()> OnClick;

  // --- Called by the backend only. ---
  void UserSelected(int index) {
    if (Take(index)) Host().Raise(OnClick);
  }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  bool Take(int index) {
    if (index < 0 || index >= static_cast<int>(tabs_.size()) || index == index_) return false;
    index_ = index;
    return true;
  }

  std::vector<Tab> tabs_;
  int index_ = 0;
};

}  // namespace troth
