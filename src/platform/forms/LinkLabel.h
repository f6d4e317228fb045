// A line of text that leads somewhere, such as an address. OnClick follows a click, or Enter or Space while
// it has the focus.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

struct LinkLabelOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
};

class LinkLabel final : public Control {
 public:
  LinkLabel(ControlHost& host, LinkLabelOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds}),
        caption_(std::move(options.caption)) {}

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    Refresh(Aspect::Caption);
  }

  std::wstring_view CaptionText() const override { return caption_; }
  bool WrapsCaption() const override { return true; }

  std::function<void()> OnClick;

  // --- Called by the form and the backend only. ---
  void UserClicked() {
    if (IsShown() && IsUsable()) Host().Raise(OnClick);
  }
  bool UserPressedEnter() override {
    UserClicked();
    return true;
  }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring caption_;
};

}  // namespace troth
