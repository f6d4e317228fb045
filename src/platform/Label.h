// A line of text beside or above a control. An "&" in its caption is a mnemonic that leads to the next
// control in tab order. Takes no focus and raises no event.
#pragma once

#include "platform/Control.h"

namespace troth {

struct LabelOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  std::optional<Color> backColor = std::nullopt;
  std::optional<Color> foreColor = std::nullopt;
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
        caption_(std::move(options.caption)) {}

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    Refresh(Aspect::Caption);
  }

  std::wstring_view CaptionText() const override { return caption_; }
  bool IsTabStop() const override { return false; }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring caption_;
};

}  // namespace troth
