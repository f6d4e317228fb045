// One of several choices that exclude each other. The buttons of a group stand in the same frame, or directly
// on the same form. OnClick follows when the button becomes the selected one, by the user (click, mnemonic,
// arrow keys within the group) or by the program.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct OptionButtonOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
  bool isSelected = false;
};

class OptionButton final : public Control {
 public:
  OptionButton(ControlHost& host, OptionButtonOptions options);

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption);
  std::wstring_view CaptionText() const override { return caption_; }

  bool Selected() const { return selected_; }
  // Selecting one deselects the others of its group. A selected button is deselected by another one only.
  void Select();

  // Tab stops at the selected button of a group alone, or at each if none is selected.
  bool IsTabStop() const override;

  std::function<void()> OnClick;

  // --- Called by the form and the backend only. ---
  void UserClicked();
  void UserPressedMnemonic() override { UserClicked(); }
  // Selects the next usable button of the group, or the previous one, and gives it the keyboard.
  void UserPressedArrow(bool forward);

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }
  std::vector<OptionButton*> Group() const;

  std::wstring caption_;
  bool selected_;
};

}  // namespace troth
