// The views of folders and documents of the real desktop: tree, list with pictures, status bar.
#pragma once

#include <vector>

#include "platform/win32/ListRows.h"
#include "platform/win32/ViewPictures.h"
#include "platform/win32/Win32Control.h"

namespace troth {

class ListView;
class StatusBar;
class TreeView;

class Win32TreeView final : public Win32Control {
 public:
  Win32TreeView(ControlSite& site, TreeView& tree);
  void Open() override;
  void FitToForm() override;
  void Refresh(Aspect aspect) override;
  LRESULT OnNotify(NMHDR& header) override;

 private:
  std::wstring WindowText() const override { return Portable().AccessibleName(); }
  void ShowNodes();
  void ShowSelected();
  void InsertNode(int node);
  LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
  int NodeOf(HTREEITEM item) const;
  int NodeAt(POINT place) const;

  TreeView& tree_;
  UniqueImageList pictures_;
  std::vector<HTREEITEM> items_;  // of the nodes that are shown, by their numbers
  int pressed_ = -1;              // the selected node, while a button that went down on it is not yet up
  bool showing_ = false;
};

class Win32ListView final : public Win32Control {
 public:
  Win32ListView(ControlSite& site, ListView& list);
  void Open() override;
  void FitToForm() override;
  void Refresh(Aspect aspect) override;
  LRESULT OnNotify(NMHDR& header) override;
  std::wstring ToolTipText() const override;

 private:
  std::wstring WindowText() const override { return Portable().AccessibleName(); }
  LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
  ListRows Rows() const;
  void ShowEntries();
  void ShowIndex();
  void ShowLabel();
  void FitColumn();
  void FollowPointer(POINT place);
  void OnItemChanged(const NMLISTVIEW& change);
  void OnLabelEnded(const NMLVDISPINFOW& edit);

  ListView& list_;
  UniqueImageList pictures_;
  int hovered_ = -1;
  bool showing_ = false;
  bool byMouse_ = false;  // a message of the mouse is being dealt with
  bool isEditing_ = false;
};

class Win32StatusBar final : public Win32Control {
 public:
  Win32StatusBar(ControlSite& site, StatusBar& bar);
  void Open() override;
  void Refresh(Aspect aspect) override;

 private:
  void ShowText();

  StatusBar& bar_;
};

}  // namespace troth
