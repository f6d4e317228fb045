// The dialogs of the real desktop: the system's message box and colour box, and the portable input box.
#pragma once

#include <array>

#include "platform/services/DialogService.h"

namespace troth {

class FormBackend;
class LoopWindow;
class Win32Loop;

class Win32Dialogs final : public DialogService {
 public:
  Win32Dialogs(Win32Loop& loop, FormBackend& forms) : loop_(loop), forms_(forms) {}
  BoxAnswer ShowMessage(const MessageBoxRequest& request) override;
  std::optional<std::wstring> AskText(const TextRequest& request) override;
  std::optional<Color> AskColor(const ColorRequest& request) override;

 private:
  const LoopWindow* Owner() const;

  Win32Loop& loop_;
  FormBackend& forms_;
  // The user's own colours last as long as the run.
  std::array<unsigned long, 16> customColors_{};
};

}  // namespace troth
