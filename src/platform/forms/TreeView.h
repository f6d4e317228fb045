// A tree of folders, at most one of them selected; the selected one is drawn as an open folder. A new node is
// visible at once: the nodes above it are open. OnNodeClick follows each click on a node, also on the
// selected one, and each move of the selection by the keyboard. What the program changes raises nothing.
#pragma once

#include <vector>

#include "platform/forms/Control.h"

namespace troth {

struct TreeNode {
  int parent = -1;    // number of the node above it, -1 for none
  std::wstring key;   // what the program knows the node by
  std::wstring text;  // what the user sees
};

struct TreeViewOptions {
  std::wstring name;
  std::wstring toolTip = {};
  Rect bounds;
};

class TreeView final : public Control {
 public:
  TreeView(ControlHost& host, TreeViewOptions options);

  // Nodes are numbered from 0 in the order of their adding.
  void Clear();
  int Add(int parent, std::wstring key, std::wstring text);
  int Count() const { return static_cast<int>(nodes_.size()); }
  const TreeNode& Node(int node) const { return nodes_.at(static_cast<std::size_t>(node)); }
  const std::wstring& KeyOf(int node) const { return Node(node).key; }

  // -1 while nothing is selected. A number that does not exist selects nothing.
  int Selected() const { return selected_; }
  void Select(int node);

  std::function<void(int node)> OnNodeClick;

  // --- Called by the backend only. ---
  void UserClicked(int node);

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::vector<TreeNode> nodes_;
  int selected_ = -1;
};

}  // namespace troth
