// A plain coloured field, the program's icon, or a picture that was captured. OnClick follows a click. A
// field that is made for choosing takes the keyboard as well, and OnClick follows Space and Enter, too.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

class Bitmap;

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

  // A picture in place of the field, one pixel for one from its upper left corner, or none. It has to come
  // from the graphics service of the same desktop.
  const Bitmap* Shown() const { return bitmap_.get(); }
  void SetBitmap(std::shared_ptr<const Bitmap> bitmap) {
    bitmap_ = std::move(bitmap);
    Refresh(Aspect::Picture);
  }

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
  std::shared_ptr<const Bitmap> bitmap_;
  bool isForChoosing_;
};

}  // namespace troth
