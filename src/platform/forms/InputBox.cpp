#include "platform/forms/InputBox.h"

namespace troth {

namespace {

constexpr int kMargin = 150;
constexpr int kLineTwips = 210;
constexpr std::size_t kCharactersPerLine = 52;  // fewer than a line holds on average

// The height of the prompt, from its length: portable code cannot measure a text.
int PromptTwips(const std::wstring& prompt) {
  return kLineTwips * static_cast<int>(prompt.size() / kCharactersPerLine + 1);
}

void MoveBelow(Control& control, int top) {
  Rect bounds = control.Bounds();
  bounds.top = top;
  control.SetBounds(bounds);
}

}  // namespace

InputBox::InputBox(FormBackend& forms, const TextRequest& request)
    : Form(forms, {.name = L"InputBox",
                   .caption = request.title,
                   .clientSize = {5130, PromptTwips(request.prompt) + 1200},
                   .border = BorderStyle::FixedDialog,
                   .isCentred = true}),
      txtAnswer(*this,
                {.name = L"txtAnswer", .bounds = {180, 1020, 4770, 315}, .accessibleName = request.prompt}) {
  lblPrompt.SetCaption(request.prompt);
  lblPrompt.SetBounds({180, kMargin, 4770, PromptTwips(request.prompt)});
  const int answerTop = kMargin + PromptTwips(request.prompt) + 60;
  MoveBelow(txtAnswer, answerTop);
  MoveBelow(cmdOK, answerTop + 465);
  MoveBelow(cmdCancel, answerTop + 465);
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
