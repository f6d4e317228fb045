#include "platform/forms/TextBox.h"

#include "platform/forms/ControlHost.h"

namespace troth {

TextBox::TextBox(ControlHost& host, TextBoxOptions options)
    : Control(host, {.name = std::move(options.name),
                     .toolTip = std::move(options.toolTip),
                     .bounds = options.bounds,
                     .visible = options.visible,
                     .enabled = options.enabled,
                     .backColor = options.backColor,
                     .foreColor = options.foreColor,
                     .font = std::move(options.font),
                     .accessibleName = std::move(options.accessibleName)}),
      text_(std::move(options.text)),
      readOnly_(options.readOnly),
      isMultiLine_(options.isMultiLine) {}

void TextBox::SetText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  allSelected_ = false;
  Refresh(Aspect::Text);
  Host().Raise(OnChange);
}

void TextBox::SelectAll() {
  allSelected_ = true;
  Refresh(Aspect::Selection);
}

void TextBox::PutCaretAtEnd() {
  allSelected_ = false;
  Refresh(Aspect::Selection);
}

void TextBox::UserTyped(std::wstring wholeText) {
  allSelected_ = false;
  if (wholeText == text_) return;
  text_ = std::move(wholeText);
  Host().Raise(OnChange);
}

}  // namespace troth
