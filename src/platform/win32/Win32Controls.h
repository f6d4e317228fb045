// The small controls of the real desktop.
#pragma once

#include <string>

#include "platform/forms/Label.h"
#include "platform/win32/Win32Control.h"

namespace troth {

class CheckBox;
class CommandButton;
class LinkLabel;
class OptionButton;
class TextBox;

class Win32Label final : public Win32Control {
 public:
  Win32Label(ControlSite& site, Label& label);
  void Refresh(Aspect aspect) override;
  // Draws itself: the system places a single line only at the top or in the middle.
  void Draw(const DRAWITEMSTRUCT& drawing) override;

 private:
  std::wstring WindowText() const override { return label_.Caption(); }
  HFONT ChooseFont() override;
  bool OnMessage(UINT message) override;
  int Claim() const override { return 0; }
  int TopOfLine(int height) const;

  Label& label_;
  bool pressed_ = false;  // the left button went down on it
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
  std::wstring WindowText() const override;
  bool OnMessage(UINT message) override;

  CommandButton& button_;
};

class Win32CheckBox final : public Win32Control {
 public:
  Win32CheckBox(ControlSite& site, CheckBox& box);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;

 private:
  int Claim() const override { return 1; }

  CheckBox& box_;
};

class Win32OptionButton final : public Win32Control {
 public:
  Win32OptionButton(ControlSite& site, OptionButton& button);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;
  bool TakeKey(int keyCode, int shift) override;

 private:
  int Claim() const override { return 1; }

  OptionButton& button_;
};

class Win32TextBox final : public Win32Control {
 public:
  Win32TextBox(ControlSite& site, TextBox& box);
  void Open() override;
  void Refresh(Aspect aspect) override;
  void OnCommand(WORD code) override;

 private:
  bool IsNamedByLabel() const override { return true; }
  bool OnMessage(UINT message) override;
  void PaintDisabled();
  void ShowText();

  TextBox& box_;
  // What of a very long text is not shown: the system's box takes seconds to lay out a line of a megabyte.
  std::wstring hiddenTail_;
  bool showing_ = false;
};

}  // namespace troth
