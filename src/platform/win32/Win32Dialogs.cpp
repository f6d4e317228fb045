#include "platform/win32/Win32Dialogs.h"

#include <algorithm>

#include "platform/forms/InputBox.h"
#include "platform/win32/Win32.h"
#include "platform/win32/Win32Loop.h"
// The common dialogs need windows.h before them.
#include <commdlg.h>

namespace troth {

namespace {

constexpr std::size_t kLongestPath = 32768;

// A dialog of a minimised owner would be hidden.
bool IsOnScreen(const LoopWindow& form) { return IsWindowVisible(form.Window()) && !IsIconic(form.Window()); }

HWND WindowOf(const LoopWindow* form) { return form ? form->Window() : nullptr; }

template <class Function>
Function* FromDialogLibrary(const char* name) {
  return LateFunction<Function>(L"comdlg32.dll", name);
}

// Labels and patterns in turn, each ended by a zero, and a further zero at the end.
std::wstring FilterList(const std::vector<FileFilter>& filters) {
  std::wstring list;
  for (const FileFilter& filter : filters) list += filter.label + L'\0' + filter.pattern + L'\0';
  return list;
}

// "btn" for "*.btn"; empty for "*.*".
std::wstring DefaultExtension(const std::vector<FileFilter>& filters) {
  if (filters.empty()) return {};
  const std::wstring& pattern = filters.front().pattern;
  const std::wstring extension = pattern.substr(pattern.find(L'.') + 1);
  return extension.find_first_of(L"*?;.") == std::wstring::npos ? extension : std::wstring();
}

// The colour box has no parameter for its title.
UINT_PTR CALLBACK SetTitle(HWND box, UINT message, WPARAM, LPARAM lParam) {
  if (message == WM_INITDIALOG)
    SetWindowTextW(
        box, reinterpret_cast<const wchar_t*>(reinterpret_cast<const CHOOSECOLORW*>(lParam)->lCustData));
  return 0;
}

}  // namespace

// The box itself disables its owner and enables it again at the right moment.
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
    case BoxButtons::OkCancel:
      style |= MB_OKCANCEL;
      break;
    case BoxButtons::YesNo:
      style |= MB_YESNO;
      break;
    case BoxButtons::YesNoCancel:
      style |= MB_YESNOCANCEL;
      break;
  }
  // Another program has the keyboard: without these styles the box could open behind its window. Wine knows
  // only the older name of the first one.
  if (!ActiveForm()) style |= MB_SYSTEMMODAL | MB_SETFOREGROUND;
  const LoopWindow* owner = Owner();
  const InputLock lock(loop_, owner);
  switch (MessageBoxW(WindowOf(owner), request.text.c_str(), request.title.c_str(), style)) {
    case IDYES:
      return BoxAnswer::Yes;
    case IDNO:
      return BoxAnswer::No;
    case IDOK:
      return BoxAnswer::Ok;
    default:
      break;
  }
  // Closed: Wine returns Cancel whatever the buttons are.
  if (request.buttons == BoxButtons::Ok) return BoxAnswer::Ok;
  return request.buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
}

std::optional<std::wstring> Win32Dialogs::AskText(const TextRequest& request) {
  return InputBox::Ask(forms_, request);
}

std::optional<Color> Win32Dialogs::AskColor(const ColorRequest& request) {
  const LoopWindow* owner = Owner();
  const InputLock lock(loop_, owner);
  CHOOSECOLORW box{};
  box.lStructSize = sizeof box;
  box.hwndOwner = WindowOf(owner);
  box.rgbResult = request.preset;
  box.lpCustColors = customColors_.data();
  box.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ENABLEHOOK;
  box.lCustData = reinterpret_cast<LPARAM>(request.title.c_str());
  box.lpfnHook = SetTitle;
  if (!FromDialogLibrary<decltype(ChooseColorW)>("ChooseColorW")(&box)) return std::nullopt;
  return box.rgbResult;
}

std::optional<std::wstring> Win32Dialogs::AskOpenFile(const FileRequest& request) {
  return AskFile(request, "GetOpenFileNameW", request.mustExist ? OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST : 0);
}

std::optional<std::wstring> Win32Dialogs::AskSaveFile(const FileRequest& request) {
  return AskFile(request, "GetSaveFileNameW", request.overwritePrompt ? OFN_OVERWRITEPROMPT : 0);
}

std::optional<std::wstring> Win32Dialogs::AskFile(const FileRequest& request, const char* function,
                                                  unsigned long flags) {
  std::wstring path = request.fileName;
  path.resize(kLongestPath);
  const std::wstring filters = FilterList(request.filters);
  const std::wstring extension = DefaultExtension(request.filters);
  const LoopWindow* owner = Owner();
  const InputLock lock(loop_, owner);
  OPENFILENAMEW box{};
  box.lStructSize = sizeof box;
  box.hwndOwner = WindowOf(owner);
  box.lpstrFilter = filters.c_str();
  box.lpstrFile = path.data();
  box.nMaxFile = static_cast<DWORD>(path.size());
  box.lpstrInitialDir = request.folder.empty() ? nullptr : request.folder.c_str();
  box.lpstrTitle = request.title.c_str();
  box.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
  box.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | flags;
  if (!FromDialogLibrary<BOOL WINAPI(OPENFILENAMEW*)>(function)(&box)) return std::nullopt;
  path.resize(path.find(L'\0'));
  return path;
}

void Win32Dialogs::Beep() { MessageBeep(MB_OK); }

const LoopWindow* Win32Dialogs::ActiveForm() const {
  const LoopWindow* active = loop_.FormOf(GetActiveWindow());
  return active && IsOnScreen(*active) ? active : nullptr;
}

// Null if the program shows no window.
const LoopWindow* Win32Dialogs::Owner() const {
  if (const LoopWindow* active = ActiveForm()) return active;
  const auto& forms = loop_.Windows();
  const auto newest =
      std::find_if(forms.rbegin(), forms.rend(), [](const LoopWindow* form) { return IsOnScreen(*form); });
  return newest == forms.rend() ? nullptr : *newest;
}

}  // namespace troth
