#include "platform/win32/Win32Dialogs.h"

#include "platform/forms/InputBox.h"
#include "platform/win32/Win32.h"
#include "platform/win32/Win32Loop.h"
// The common dialogs need windows.h ahead of them.
#include <commdlg.h>

namespace troth {

namespace {

HWND VisibleWindowOf(const LoopWindow* owner) {
  return owner && IsWindowVisible(owner->Window()) ? owner->Window() : nullptr;
}

// The title goes into a box that has no field for it.
UINT_PTR CALLBACK SetTitle(HWND box, UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_INITDIALOG)
    SetWindowTextW(
        box, reinterpret_cast<const wchar_t*>(reinterpret_cast<const CHOOSECOLORW*>(lParam)->lCustData));
  return 0;
}

}  // namespace

// The owner is disabled by the box itself, which also knows the moment to give it the input back.
BoxAnswer Win32Dialogs::ShowMessage(const MessageBoxRequest& request) {
  UINT style = 0;
  switch (request.icon) {
    case BoxIcon::None:
      break;
    case BoxIcon::Stop:
      style |= MB_ICONHAND;
      break;
    case BoxIcon::Question:
      style |= MB_ICONQUESTION;
      break;
    case BoxIcon::Warning:
      style |= MB_ICONWARNING;
      break;
    case BoxIcon::Information:
      style |= MB_ICONINFORMATION;
      break;
  }
  switch (request.buttons) {
    case BoxButtons::Ok:
      style |= MB_OK;
      break;
    case BoxButtons::YesNo:
      style |= MB_YESNO;
      break;
    case BoxButtons::YesNoCancel:
      style |= MB_YESNOCANCEL;
      break;
  }
  const LoopWindow* owner = Owner();
  const InputLock lock(loop_, owner);
  switch (MessageBoxW(VisibleWindowOf(owner), request.text.c_str(), request.title.c_str(), style)) {
    case IDYES:
      return BoxAnswer::Yes;
    case IDNO:
      return BoxAnswer::No;
    case IDOK:
      return BoxAnswer::Ok;
    default:
      break;
  }
  // Closed: Wine calls that Cancel whatever the buttons are.
  if (request.buttons == BoxButtons::Ok) return BoxAnswer::Ok;
  return request.buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
}

std::optional<std::wstring> Win32Dialogs::AskText(const TextRequest& request) {
  return InputBox::Ask(forms_, request);
}

// The library is loaded when the first colour is chosen, not with the program.
std::optional<Color> Win32Dialogs::AskColor(const ColorRequest& request) {
  static const HMODULE library = LoadLibraryW(L"comdlg32.dll");
  const auto choose = reinterpret_cast<decltype(ChooseColorW)*>(
      reinterpret_cast<void*>(GetProcAddress(library, "ChooseColorW")));
  const LoopWindow* owner = Owner();
  const InputLock lock(loop_, owner);
  CHOOSECOLORW box{};
  box.lStructSize = sizeof box;
  box.hwndOwner = VisibleWindowOf(owner);
  box.rgbResult = request.preset;
  box.lpCustColors = customColors_.data();
  box.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ENABLEHOOK;
  box.lCustData = reinterpret_cast<LPARAM>(request.title.c_str());
  box.lpfnHook = SetTitle;
  if (!choose(&box)) return std::nullopt;
  return box.rgbResult;
}

// The active form, otherwise the newest.
const LoopWindow* Win32Dialogs::Owner() const {
  const LoopWindow* active = loop_.FormOf(GetActiveWindow());
  return active || loop_.Windows().empty() ? active : loop_.Windows().back();
}

}  // namespace troth
