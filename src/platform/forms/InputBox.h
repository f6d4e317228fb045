// A question with one line for the answer, OK and Cancel. Shown by the desktops' dialog services, which is
// how the program asks it; no window opens it by itself.
#pragma once

#include <optional>
#include <string>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/TextBox.h"
#include "platform/services/DialogService.h"

namespace troth {

class InputBox final : public Form {
 public:
  // Returns when the user has answered; nothing after Cancel, Esc or the close box.
  static std::optional<std::wstring> Ask(FormBackend& forms, const TextRequest& request);

  InputBox(FormBackend& forms, const TextRequest& request);

  Label lblPrompt{*this, {.name = L"lblPrompt", .bounds = {180, 150, 4770, 780}, .wraps = true}};
  TextBox txtAnswer;
  CommandButton cmdOK{
      *this, {.name = L"cmdOK", .caption = L"OK", .bounds = {2310, 1500, 1260, 375}, .isDefault = true}};
  CommandButton cmdCancel{
      *this,
      {.name = L"cmdCancel", .caption = L"Cancel", .bounds = {3690, 1500, 1260, 375}, .isCancel = true}};

 private:
  bool confirmed_ = false;
};

}  // namespace troth
