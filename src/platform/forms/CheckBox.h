// A box that is ticked or clear. OnClick follows a change by the user (click, Space, mnemonic); setting the
// value from the program raises nothing.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct CheckBoxOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
  bool ticked = false;
  bool wraps = false;  // the caption takes as many lines as fit
  std::optional<ControlFont> font = std::nullopt;
};

class CheckBox final : public Control {
 public:
  CheckBox(ControlHost& host, CheckBoxOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .enabled = options.enabled,
                       .font = std::move(options.font)}),
        caption_(std::move(options.caption)),
        ticked_(options.ticked),
        wraps_(options.wraps) {}

  const std::wstring& Caption() const { return caption_; }
  std::wstring_view CaptionText() const override { return caption_; }
  bool WrapsCaption() const override { return wraps_; }

  bool Ticked() const { return ticked_; }
  void SetTicked(bool ticked) {
    if (ticked == ticked_) return;
    ticked_ = ticked;
    Refresh(Aspect::Value);
  }

  std::function<void()> OnClick;

  // --- Called by the backend only. ---
  void UserToggled() {
    if (!IsShown() || !IsUsable()) return;
    SetTicked(!ticked_);
    Host().Raise(OnClick);
  }
  void UserPressedMnemonic() override { UserToggled(); }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring caption_;
  bool ticked_;
  bool wraps_;
};

}  // namespace troth
