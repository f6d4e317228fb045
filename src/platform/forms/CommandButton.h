// A push button. OnClick follows a click, its mnemonic, Space while it has the focus, Enter if it is the
// default button (unless another button has the focus) and Esc if it is the cancel button. A disabled or
// hidden button is never clicked by the user.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct CommandButtonOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
  bool isDefault = false;
  bool isCancel = false;
  bool isTabStop = true;  // false for one that is there for its key alone
  // The second press of a double click does nothing: for a button whose action must not run twice by
  // accident.
  bool ignoresDoubleClick = false;
  bool hasMnemonic = true;  // false for a text of the user's, in which an "&" is an "&"
  std::optional<ControlFont> font = std::nullopt;
};

class CommandButton final : public Control {
 public:
  CommandButton(ControlHost& host, CommandButtonOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .enabled = options.enabled,
                       .font = std::move(options.font)}),
        caption_(std::move(options.caption)),
        isDefault_(options.isDefault),
        isCancel_(options.isCancel),
        isTabStop_(options.isTabStop),
        ignoresDoubleClick_(options.ignoresDoubleClick),
        hasMnemonic_(options.hasMnemonic) {
    SetShownCaption();
  }

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    SetShownCaption();
    Refresh(Aspect::Caption);
  }

  bool IsDefault() const { return isDefault_; }
  bool IsCancel() const { return isCancel_; }
  bool IgnoresDoubleClick() const { return ignoresDoubleClick_; }
  std::wstring_view CaptionText() const override { return shownCaption_; }
  bool IsTabStop() const override { return isTabStop_; }

  std::function<void()> OnClick;

  // --- Called by the form and the backend only. ---
  void UserClicked() {
    if (IsShown() && IsUsable()) Host().Raise(OnClick);
  }
  void UserPressedMnemonic() override { UserClicked(); }
  bool UserPressedEnter() override {
    UserClicked();
    return true;
  }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  // The system takes "&&" for the character itself.
  void SetShownCaption() {
    shownCaption_.clear();
    for (const wchar_t character : caption_)
      shownCaption_.append(character == L'&' && !hasMnemonic_ ? 2 : 1, character);
  }

  std::wstring caption_;
  std::wstring shownCaption_;
  bool isDefault_;
  bool isCancel_;
  bool isTabStop_;
  bool ignoresDoubleClick_;
  bool hasMnemonic_;
};

}  // namespace troth
