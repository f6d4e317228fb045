#include "platform/win32/Win32Services.h"

#include <climits>

#include "platform/win32/Win32.h"
#include "platform/win32/Win32Loop.h"

namespace troth {

namespace {

HWND ToWindow(WindowHandle window) { return reinterpret_cast<HWND>(static_cast<ULONG_PTR>(window)); }

std::wstring ExecutablePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

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
  if (PostMessageA(ToWindow(window), WM_CHAR, code, 1)) return PostOutcome::Posted;
  return GetLastError() == ERROR_NOT_ENOUGH_QUOTA && IsWindow(ToWindow(window)) ? PostOutcome::QueueFull
                                                                                : PostOutcome::Refused;
}

std::wstring Win32Files::ProgramFolder() const {
  const std::wstring path = ExecutablePath();
  return path.substr(0, path.find_last_of(L'\\'));
}

std::wstring Win32Files::ExecutableName() const {
  const std::wstring path = ExecutablePath();
  const std::wstring file = path.substr(path.find_last_of(L'\\') + 1);
  return file.substr(0, file.find_last_of(L'.'));
}

bool Win32Files::Exists(const std::wstring& path) const {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::optional<std::string> Win32Files::Read(const std::wstring& path) const {
  const HANDLE opened = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return std::nullopt;
  const UniqueFile file(opened);
  LARGE_INTEGER size;
  if (!GetFileSizeEx(file.get(), &size) || size.QuadPart > INT_MAX) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD read = 0;
  if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr))
    return std::nullopt;
  bytes.resize(read);
  return bytes;
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
      return BoxAnswer::Cancel;
  }
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

void Win32Process::EndNow(int exitCode) {
  ExitProcess(static_cast<UINT>(exitCode));
  __builtin_unreachable();
}

}  // namespace troth
