// A plain coloured field, or the program's icon. OnClick follows a click. A field that is made for choosing
// takes the keyboard as well, and OnClick follows Space and Enter, too.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

enum class Picture { Plain, ProgramIcon };

struct PictureBoxOptions {
  std::wstring name;
  std::wstring toolTip;
  Rect bounds;
  Picture picture = Picture::Plain;
  bool isForChoosing = false;
  bool enabled = true;
  std::optional<Color> backColor = std::nullopt;
};

class PictureBox final : public Control {
 public:
  PictureBox(ControlHost& host, PictureBoxOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = true,
                       .enabled = options.enabled,
                       .backColor = options.backColor}),
        picture_(options.picture),
        isForChoosing_(options.isForChoosing) {}

  Picture Shows() const { return picture_; }
  bool IsForChoosing() const { return isForChoosing_; }
  bool IsTabStop() const override { return isForChoosing_; }

  std::function<void()> OnClick;

  // --- Called by the form and the backend only. ---
  void UserClicked() {
    if (IsShown() && IsUsable()) Host().Raise(OnClick);
  }
  bool UserPressedEnter() override {
    if (isForChoosing_) UserClicked();
    return isForChoosing_;
  }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  Picture picture_;
  bool isForChoosing_;
};

}  // namespace troth
