// A list of the real desktop. The system's list keeps no rows of its own: it asks for the text and the tick
// of each row that it draws, so that tens of thousands of rows cost nothing.
#pragma once

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
  void Deselect();
  void ShowEntries();
  void ShowIndex();
  void FitColumn();
  void DescribeRow(struct tagLVDISPINFOW& request) const;
  void OnItemChanged(const struct tagNMLISTVIEW& change);
  LRESULT DrawRow(struct tagNMLVCUSTOMDRAW& drawing) const;
  void OnClick(const struct tagNMITEMACTIVATE& click);
  LRESULT FindRow(const struct tagNMLVFINDITEMW& search) const;

  ListBox& list_;
  int shownIndex_ = -1;  // the row that the system's list has selected, or -1
  bool showing_ = false;
};

}  // namespace troth
