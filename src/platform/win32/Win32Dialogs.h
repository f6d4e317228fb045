// The dialogs of the Windows backend: the system's message box, colour box and file boxes, and the portable
// input box.
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
  std::optional<std::wstring> AskOpenFile(const FileRequest& request) override;
  std::optional<std::wstring> AskSaveFile(const FileRequest& request) override;
  void Beep() override;

 private:
  const LoopWindow* ActiveForm() const;
  const LoopWindow* Owner() const;
  std::optional<std::wstring> AskFile(const FileRequest& request, const char* function, unsigned long flags);

  Win32Loop& loop_;
  FormBackend& forms_;
  // The user's own colours are kept until the end of the run.
  std::array<unsigned long, 16> customColors_{};
};

}  // namespace troth
