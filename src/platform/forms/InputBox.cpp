#include "platform/forms/InputBox.h"

namespace troth {

InputBox::InputBox(FormBackend& forms, const TextRequest& request)
    : Form(forms, {.name = L"InputBox",
                   .caption = request.title,
                   .clientSize = {5130, 2025},
                   .border = BorderStyle::FixedDialog,
                   .isCentred = true}) {
  lblPrompt.SetCaption(request.prompt);
  txtAnswer.SetText(request.preset);
  txtAnswer.SelectAll();
  cmdOK.OnClick = [this] {
    confirmed_ = true;
    Unload();
  };
  cmdCancel.OnClick = [this] { Unload(); };
}

std::optional<std::wstring> InputBox::Ask(FormBackend& forms, const TextRequest& request) {
  InputBox box(forms, request);
  box.ShowModal();
  if (!box.confirmed_) return std::nullopt;
  return box.txtAnswer.Text();
}

}  // namespace troth
