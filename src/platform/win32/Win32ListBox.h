// A list of the real desktop. The system's list keeps no rows of its own: it asks for the text and the tick
// of each row that it draws, so that tens of thousands of rows cost nothing.
#pragma once

#include "platform/win32/ListRows.h"
#include "platform/win32/Win32Control.h"

namespace troth {

class ListBox;

class Win32ListBox final : public Win32Control {
 public:
  Win32ListBox(ControlSite& site, ListBox& list);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void FitToForm() override;
  LRESULT OnNotify(NMHDR& header) override;

 private:
  LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
  std::wstring WindowText() const override { return Portable().AccessibleName(); }
  void Deselect();
  void ShowEntries();
  void ShowIndex();
  void ShowMark();
  void FitColumn();
  ListRows Rows() const;
  void DescribeRow(NMLVDISPINFOW& request) const;
  void OnItemChanged(const NMLISTVIEW& change);
  LRESULT DrawRow(NMLVCUSTOMDRAW& drawing) const;
  void DrawEmptyText(HDC surface) const;
  void OnClick(const NMITEMACTIVATE& click);
  void ToggleTick(int row);

  ListBox& list_;
  int shownIndex_ = -1;  // the row that the system's list has selected, or -1
  bool showing_ = false;
};

}  // namespace troth
