// The scripted user of the headless desktop. Acts as a person can: only on what is shown, enabled and not
// blocked by a modal window; anything else fails the test with the name of what could not be reached.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/HeadlessForms.h"

namespace troth {

class Canvas;
class CheckBox;
class CommandButton;
class DropDownList;
class Label;
class LinkLabel;
class ListBox;
class ListView;
class MenuItem;
class OptionButton;
class PictureBox;
class TabStrip;
class TextBox;
class TreeView;

class HeadlessUser {
 public:
  explicit HeadlessUser(HeadlessForms& forms) : forms_(forms) {}

  // With the mouse. A click gives the control the keyboard first; its Down and Up precede what it does.
  void Click(CommandButton& button);
  void Click(CheckBox& box);
  void Click(Label& label);
  void Click(LinkLabel& link);
  void Click(OptionButton& button);
  void Click(TextBox& box);
  void Click(PictureBox& box);
  void Click(Canvas& canvas);
  void RightClick(Control& control, int shift = 0);
  void MouseDown(Control& control, const MouseEvent& event);
  void MouseMove(Control& control, const MouseEvent& event);
  void MouseUp(Control& control, const MouseEvent& event);
  // On the form's own ground.
  void Click(Form& form);
  void DoubleClick(Form& form);
  void MouseDown(Form& form, const MouseEvent& event);
  void MouseMove(Form& form, const MouseEvent& event);
  void MouseUp(Form& form, const MouseEvent& event);
  void Select(DropDownList& list, int index);
  void Select(ListBox& list, int index);
  void Select(TabStrip& tabs, int index);
  void ClickTick(ListBox& list, int index);
  void DoubleClick(ListBox& list, int index);
  void Click(TreeView& tree, int node);
  // -1 is the ground below the entries.
  void Click(ListView& list, int index);
  void RightClick(ListView& list, int index);
  void DoubleClick(ListView& list, int index);
  // Types over the text that is being edited and presses Enter; nothing presses Esc.
  void EndLabelEdit(ListView& list, std::optional<std::wstring> text);
  void Choose(MenuItem& item);
  void CloseWindow(Form& form);
  void DropFile(Form& form, const std::wstring& path);

  // With the keyboard, in the active form. `Press` takes a virtual key code and a sum of the shift bits.
  void Press(int keyCode, int shift = 0);
  void Release(int keyCode, int shift = 0);
  void Type(std::wstring_view text);
  // Reaches the form that registered the combination, whatever has the keyboard. `modifiers` is a sum of the
  // kHotkey bits.
  void PressHotkey(int keyCode, int modifiers = 0);
  Control* Focused() const;

 private:
  HeadlessForm& Reach(const Control& control);
  Form& Reach(Form& form);
  void ClickOn(Control& control, const std::function<void()>& act);
  void ActOn(Control& control, const std::function<void()>& act);
  bool PressNavigationKey(HeadlessForm& form, int keyCode, int shift);
  void PressTab(HeadlessForm& form, bool backward);
  bool PressMnemonic(HeadlessForm& form, wchar_t letter);
  void PressInControl(Control& control, int keyCode);
  void ClickEntry(ListView& list, int index, MouseButton button);
  static void PressInList(ListView& list, int keyCode);

  HeadlessForms& forms_;
  // Tab selects what stands in a text box, so that the next character replaces it.
  bool replaces_ = false;
};

}  // namespace troth
