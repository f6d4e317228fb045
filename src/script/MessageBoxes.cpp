#include "script/MessageBoxes.h"

#include <utility>

#include "platform/Platform.h"
#include "script/ProgramTitle.h"
#include "script/Text.h"

namespace troth {

void ShowBox(const Platform& platform, BoxIcon icon, std::wstring text) {
  platform.dialogs.ShowMessage({.text = std::move(text), .title = kProgramTitle, .icon = icon});
}

bool Confirms(const Platform& platform, std::wstring question) {
  return platform.dialogs.ShowMessage({.text = std::move(question),
                                       .title = kProgramTitle,
                                       .icon = BoxIcon::Question,
                                       .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

std::wstring AskLine(const Platform& platform, std::wstring prompt, std::wstring preset) {
  const auto answer = platform.dialogs.AskText(
      {.prompt = std::move(prompt), .title = kProgramTitle, .preset = std::move(preset)});
  return std::wstring(TrimBlanks(answer.value_or(L"")));
}

}  // namespace troth
