#include "platform/forms/TreeView.h"

#include <utility>

#include "platform/forms/ControlHost.h"

namespace troth {

TreeView::TreeView(ControlHost& host, TreeViewOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds}) {}

void TreeView::Clear() {
  nodes_.clear();
  selected_ = -1;
  Refresh(Aspect::Entries);
}

int TreeView::Add(int parent, std::wstring key, std::wstring text) {
  nodes_.push_back({parent, std::move(key), std::move(text)});
  Refresh(Aspect::Entries);
  return Count() - 1;
}

void TreeView::Select(int node) {
  selected_ = node >= 0 && node < Count() ? node : -1;
  Refresh(Aspect::Index);
}

void TreeView::UserClicked(int node) {
  if (node < 0 || node >= Count()) return;
  selected_ = node;
  Host().Raise(OnNodeClick, node);
}

}  // namespace troth
