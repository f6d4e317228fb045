// The small controls of the real desktop.
#pragma once

#include <string>

#include "platform/win32/Win32Control.h"

namespace troth {

class CheckBox;
class CommandButton;
class Label;
class LinkLabel;
class TextBox;

class Win32Label final : public Win32Control {
 public:
  Win32Label(ControlSite& site, Label& label);

 private:
  std::wstring WindowText() const override;
  HFONT ChooseFont() override;
  bool HugsCaption() const override;

  Label& label_;
  UniqueFont font_;
};

class Win32LinkLabel final : public Win32Control {
 public:
  Win32LinkLabel(ControlSite& site, LinkLabel& link);
  LRESULT OnNotify(NMHDR& header) override;

 private:
  std::wstring WindowText() const override;

  LinkLabel& link_;
};

class Win32CommandButton final : public Win32Control {
 public:
  Win32CommandButton(ControlSite& site, CommandButton& button);
  void OnCommand(WORD code) override;

 private:
  CommandButton& button_;
};

class Win32CheckBox final : public Win32Control {
 public:
  Win32CheckBox(ControlSite& site, CheckBox& box);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;

 private:
  bool HugsCaption() const override { return true; }

  CheckBox& box_;
};

class Win32TextBox final : public Win32Control {
 public:
  Win32TextBox(ControlSite& site, TextBox& box);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;

 private:
  void ShowText();

  TextBox& box_;
  // What of a very long text is not shown: the system's box takes seconds to lay out a line of a megabyte.
  std::wstring hiddenTail_;
  bool showing_ = false;
};

}  // namespace troth
