#include "platform/win32/Win32Services.h"

#include "platform/win32/Win32.h"
#include "platform/win32/Win32Loop.h"

namespace troth {

namespace {

HWND ToWindow(WindowHandle window) { return reinterpret_cast<HWND>(static_cast<ULONG_PTR>(window)); }

}  // namespace

// GetTickCount would move in steps of 16 ms.
std::uint32_t Win32Time::TickCount() const {
  static const LONGLONG frequency = [] {
    LARGE_INTEGER perSecond;
    QueryPerformanceFrequency(&perSecond);
    return perSecond.QuadPart;
  }();
  LARGE_INTEGER now;
  QueryPerformanceCounter(&now);
  const LONGLONG seconds = now.QuadPart / frequency;
  const LONGLONG rest = now.QuadPart % frequency;
  return static_cast<std::uint32_t>(seconds * 1000 + rest * 1000 / frequency);
}

void Win32Time::Sleep(int ms) { ::Sleep(static_cast<DWORD>(ms)); }

void Win32Time::Pump(int waitMs) { loop_.Pump(waitMs); }

WindowHandle Win32Windows::Find(std::wstring_view className) {
  const HWND window = FindWindowW(std::wstring(className).c_str(), nullptr);
  return static_cast<WindowHandle>(reinterpret_cast<ULONG_PTR>(window));
}

void Win32Windows::Raise(WindowHandle window) { SetForegroundWindow(ToWindow(window)); }

// The ANSI call: an ANSI window gets the very byte, a Unicode window its character.
WindowService::PostOutcome Win32Windows::TryPost(WindowHandle window, unsigned char code) {
  // Without a window the system would post to the thread itself.
  if (window == WindowHandle::None) return PostOutcome::Refused;
  if (PostMessageA(ToWindow(window), WM_CHAR, code, 1)) return PostOutcome::Posted;
  return GetLastError() == ERROR_NOT_ENOUGH_QUOTA && IsWindow(ToWindow(window)) ? PostOutcome::QueueFull
                                                                                : PostOutcome::Refused;
}

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
  const LoopWindow* owner = loop_.FormOf(GetActiveWindow());
  if (!owner && !loop_.Windows().empty()) owner = loop_.Windows().back();
  const HWND window = owner && IsWindowVisible(owner->Window()) ? owner->Window() : nullptr;
  const InputLock lock(loop_, owner);
  switch (MessageBoxW(window, request.text.c_str(), request.title.c_str(), style)) {
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

std::wstring Win32Text::Decode(std::string_view bytes) const {
  if (bytes.empty()) return {};
  const int length = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');  // a byte gives one character at the most
  const int converted = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), length);
  text.resize(static_cast<std::size_t>(converted));
  return text;
}

std::string Win32Text::Encode(std::wstring_view text) const {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  const int needed = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

// The mutex lives as long as the process, also if it is killed.
bool Win32Process::IsSecondInstance() {
  static const bool wasThere = [] {
    const HANDLE held = CreateMutexW(nullptr, FALSE, L"Local\\Trothline.Running");
    return held && GetLastError() == ERROR_ALREADY_EXISTS;
  }();
  return wasThere;
}

void Win32Process::EndNow(int exitCode) {
  ExitProcess(static_cast<UINT>(exitCode));
  __builtin_unreachable();
}

}  // namespace troth
