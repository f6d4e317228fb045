#include "platform/win32/Win32Forms.h"

#include <commctrl.h>

#include "platform/win32/Win32Form.h"

namespace troth {

Win32Forms::Win32Forms(Win32Loop& loop) : loop_(loop) {
  const INITCOMMONCONTROLSEX classes{
      sizeof classes, ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_LINK_CLASS};
  InitCommonControlsEx(&classes);
}

std::unique_ptr<FormPeer> Win32Forms::Create(Form& form) { return std::make_unique<Win32Form>(loop_, form); }

void Win32Forms::RunUntilLastFormIsGone() {
  while (!loop_.Windows().empty()) loop_.ServeNext();
}

Size Win32Forms::Screen() const {
  const UINT dpi = GetDpiForSystem();
  return {ToTwips(GetSystemMetricsForDpi(SM_CXSCREEN, dpi), dpi),
          ToTwips(GetSystemMetricsForDpi(SM_CYSCREEN, dpi), dpi)};
}

}  // namespace troth
