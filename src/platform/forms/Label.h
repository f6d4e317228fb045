// A text that the user only reads. As a line beside or above a control, an "&" in its caption is a mnemonic
// that leads to the next control in tab order; as a text that wraps, an "&" is an "&". Takes no focus.
// OnClick follows a click.
#pragma once

#include "platform/forms/Control.h"
#include "platform/forms/ControlHost.h"

namespace troth {

// How a text stands out from the form's own font.
struct Letters {
  bool bold = false;
  int percent = 100;
};

enum class Alignment { Left, Centre };  // Centre: of both the width and the height

struct LabelOptions {
  std::wstring name;
  std::wstring caption;
  std::wstring toolTip;
  Rect bounds;
  bool visible = true;
  std::optional<Color> backColor = std::nullopt;
  std::optional<Color> foreColor = std::nullopt;
  bool wraps = false;  // fills its place with lines; what does not fit is cut off
  Alignment alignment = Alignment::Left;
  Letters letters = {};
  std::optional<ControlFont> font = std::nullopt;
};

class Label final : public Control {
 public:
  Label(ControlHost& host, LabelOptions options)
      : Control(host, {.name = std::move(options.name),
                       .toolTip = std::move(options.toolTip),
                       .bounds = options.bounds,
                       .visible = options.visible,
                       .backColor = options.backColor,
                       .foreColor = options.foreColor,
                       .font = std::move(options.font)}),
        caption_(std::move(options.caption)),
        wraps_(options.wraps),
        alignment_(options.alignment),
        letters_(options.letters) {}

  const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    Refresh(Aspect::Caption);
  }

  bool Wraps() const { return wraps_; }
  Alignment AlignmentOf() const { return alignment_; }
  const Letters& LettersOf() const { return letters_; }
  std::wstring_view CaptionText() const override { return wraps_ ? std::wstring_view() : caption_; }
  bool IsTabStop() const override { return false; }
  bool NamesNextControl() const override { return !CaptionText().empty(); }

  std::function<void()> OnClick;

  // --- Called by the backend only. ---
  void UserClicked() {
    if (IsShown() && IsUsable()) Host().Raise(OnClick);
  }

 private:
  std::unique_ptr<ControlPeer> CreatePeer(FormPeer& form) override { return form.Create(*this); }

  std::wstring caption_;
  bool wraps_;
  Alignment alignment_;
  Letters letters_;
};

}  // namespace troth
