#include "tests/desktop/Driver.h"

#include <algorithm>
#include <stdexcept>

#include "tests/desktop/Patience.h"

namespace troth::desktop {

namespace {

constexpr UINT kAnswerMs = 20000;
constexpr UINT kKilled = 99;

std::wstring Quoted(const std::wstring& argument) { return L'"' + argument + L'"'; }

// The global atom of a name, for the time of a question.
class NameAtom {
 public:
  explicit NameAtom(const std::wstring& name) : atom_(GlobalAddAtomW(name.c_str())) {}
  ~NameAtom() { GlobalDeleteAtom(atom_); }
  NameAtom(const NameAtom&) = delete;
  NameAtom& operator=(const NameAtom&) = delete;
  operator WPARAM() const { return atom_; }

 private:
  ATOM atom_;
};

LRESULT AskMenu(HWND form, const std::wstring& item, LPARAM what) {
  static const UINT message = RegisterWindowMessageW(L"Trothline.MenuItem");
  return Ask(form, message, NameAtom(item), what);
}

HWND ButtonOf(HWND box) {
  const auto below = WindowsBelow(box);
  const auto button =
      std::find_if(below.begin(), below.end(), [](HWND window) { return ClassOf(window) == L"Button"; });
  return button == below.end() ? nullptr : *button;
}

std::wstring MessageOf(HWND box) {
  for (const HWND window : WindowsBelow(box))
    if (ClassOf(window) == L"Static" && !TextOf(window).empty()) return TextOf(window);
  return {};
}

}  // namespace

Process::Process(const std::wstring& program, const std::vector<std::wstring>& arguments) {
  std::wstring line = Quoted(program);
  for (const std::wstring& argument : arguments) line += L' ' + Quoted(argument);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                      &started))
    throw std::runtime_error("a program cannot be started: check TROTH_PROGRAM");
  CloseHandle(started.hThread);
  handle_.reset(started.hProcess);
  id_ = started.dwProcessId;
  WaitForInputIdle(handle_.get(), kAnswerMs);
}

Process::~Process() {
  if (WaitForSingleObject(handle_.get(), 0) == WAIT_OBJECT_0) return;
  TerminateProcess(handle_.get(), kKilled);
  // Its windows go with it, or the next program would be taken for this one.
  WaitForSingleObject(handle_.get(), kAnswerMs);
  Eventually([this] { return Windows().empty(); });
}

std::optional<DWORD> Process::ExitCode() const {
  if (WaitForSingleObject(handle_.get(), kPatienceMs) != WAIT_OBJECT_0) return std::nullopt;
  DWORD code = 0;
  GetExitCodeProcess(handle_.get(), &code);
  return code;
}

std::vector<HWND> Process::Windows() const {
  std::vector<HWND> windows;
  EnumWindows(&CollectWindow, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [this](HWND window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner != id_ || !IsWindowVisible(window);
  });
  return windows;
}

HWND Process::FindForm(const std::wstring& name) const {
  for (const HWND window : Windows())
    if (NameOf(window) == name) return window;
  return nullptr;
}

std::optional<Box> Process::FindBox() const {
  for (const HWND window : Windows())
    if (ClassOf(window) == L"#32770" && ButtonOf(window))
      return Box{window, TextOf(window), MessageOf(window)};
  return std::nullopt;
}

HWND FindNamed(HWND form, const std::wstring& name) {
  for (const HWND window : WindowsBelow(form))
    if (NameOf(window) == name) return window;
  return nullptr;
}

std::vector<HWND> ControlsOn(HWND form) {
  std::vector<HWND> controls = WindowsBelow(form);
  std::erase_if(controls, [form](HWND window) { return GetAncestor(window, GA_PARENT) != form; });
  return controls;
}

LRESULT Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DWORD_PTR answer = 0;
  if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kAnswerMs, &answer))
    throw std::runtime_error("a window does not answer");
  return static_cast<LRESULT>(answer);
}

bool IsTopMost(HWND window) { return GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST; }

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(Ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
  const LRESULT length = Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

POINT CornerOf(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  return {bounds.left, bounds.top};
}

SIZE SizeOf(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

bool IsTicked(HWND checkBox) { return Ask(checkBox, BM_GETCHECK) == BST_CHECKED; }

void ClickButton(HWND button) { PostMessageW(button, BM_CLICK, 0, 0); }

void PressOk(const Box& box) { ClickButton(ButtonOf(box.window)); }

LRESULT MenuState(HWND form, const std::wstring& item) { return AskMenu(form, item, 0); }

void ChooseMenu(HWND form, const std::wstring& item) { AskMenu(form, item, 1); }

HWND FocusOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) ? info.hwndFocus : nullptr;
}

}  // namespace troth::desktop
