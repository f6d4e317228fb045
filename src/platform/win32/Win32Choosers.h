// The controls of the real desktop for choosing, besides buttons and lists: frames around groups, drop-down
// lists, tabs, and coloured fields.
#pragma once

#include "platform/win32/Win32Control.h"

namespace troth {

class DropDownList;
class Frame;
class PictureBox;
class TabStrip;

class Win32Frame final : public Win32Control {
 public:
  Win32Frame(ControlSite& site, Frame& frame);

 private:
  // A frame without a border shows nothing.
  void Draw(const DRAWITEMSTRUCT&) override {}
  // What stands in a frame leaves it whole.
  int Claim() const override { return 3; }
};

class Win32DropDownList final : public Win32Control {
 public:
  Win32DropDownList(ControlSite& site, DropDownList& list);
  void Open() override;
  void FitToForm() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;

 private:
  bool IsNamedByLabel() const override { return true; }
  DropDownList& list_;
};

class Win32TabStrip final : public Win32Control {
 public:
  Win32TabStrip(ControlSite& site, TabStrip& tabs);
  void Open() override;
  void FitToForm() override;
  void Refresh(Aspect aspect) override;
  LRESULT OnNotify(NMHDR& header) override;

 private:
  std::wstring WindowText() const override { return Portable().AccessibleName(); }
  // The ground is cut out already, and what stands on it stands beside the strip.
  int Claim() const override { return 3; }
  void FitToolTips();
  void CutGround();

  TabStrip& tabs_;
};

class Win32PictureBox final : public Win32Control {
 public:
  Win32PictureBox(ControlSite& site, PictureBox& box);
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;
  void Draw(const DRAWITEMSTRUCT& drawing) override;

 private:
  std::wstring WindowText() const override { return Portable().AccessibleName(); }
  PictureBox& box_;
};

}  // namespace troth
