// A text that the user only reads. As a line beside or above a control, an "&" in its caption is a mnemonic
// that leads to the next control in tab order; as a text that wraps, an "&" is an "&". Takes no focus and
// raises no event.
#pragma once

#include "platform/forms/Control.h"

namespace troth {

// How a text stands out from the form's own font.
struct Letters {
  bool bold = false;
  int percent = 100;
};

struct LabelOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  std::optional<Color> backColor = std::nullopt;
  std::optional<Color> foreColor = std::nullopt;
  bool wraps = false;  // fills its place with lines; what does not fit is cut off
  Letters letters = {};
};

class Label final : public Control {
 public:
  Label(ControlHost& host, LabelOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .backColor = options.backColor,
                       .foreColor = options.foreColor}),
        caption_(std::move(options.caption)),
        wraps_(options.wraps),
        letters_(options.letters) {}

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    Refresh(Aspect::Caption);
  }

  bool Wraps() const { return wraps_; }
  const Letters& LettersOf() const { return letters_; }
  std::wstring_view CaptionText() const override { return wraps_ ? std::wstring_view() : caption_; }
  bool IsTabStop() const override { return false; }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring caption_;
  bool wraps_;
  Letters letters_;
};

}  // namespace troth
