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

std::optional<PixelRect> Win32Windows::OuterRect(WindowHandle window) {
  RECT outer;
  if (!GetWindowRect(ToWindow(window), &outer)) return std::nullopt;
  return PixelRect{outer.left, outer.top, outer.right, outer.bottom};
}

// The ANSI call: an ANSI window gets the very byte, a Unicode window its character.
WindowService::PostOutcome Win32Windows::TryPost(WindowHandle window, unsigned char code) {
  // Without a window the system would post to the thread itself.
  if (window == WindowHandle::None) return PostOutcome::Refused;
  if (PostMessageA(ToWindow(window), WM_CHAR, code, 1)) return PostOutcome::Posted;
  return GetLastError() == ERROR_NOT_ENOUGH_QUOTA && IsWindow(ToWindow(window)) ? PostOutcome::QueueFull
                                                                                : PostOutcome::Refused;
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
