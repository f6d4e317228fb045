#include "platform/win32/Win32Services.h"

#include "platform/win32/Win32.h"
#include "platform/win32/Win32Loop.h"
// The multimedia timer needs windows.h before it.
#include <mmsystem.h>

#include <random>

namespace troth {

namespace {

HWND ToWindow(WindowHandle window) { return reinterpret_cast<HWND>(static_cast<ULONG_PTR>(window)); }

constexpr UINT kFineResolutionMs = 1;

SYSTEMTIME ToSystemTime(const LocalTime& time) {
  const auto word = [](int number) { return static_cast<WORD>(number); };
  return {.wYear = word(time.year),
          .wMonth = word(time.month),
          .wDayOfWeek = word(time.dayOfWeek),
          .wDay = word(time.day),
          .wHour = word(time.hour),
          .wMinute = word(time.minute),
          .wSecond = word(time.second),
          .wMilliseconds = 0};
}

std::wstring LocaleText(int type) {
  wchar_t text[128] = {};
  GetLocaleInfoW(LOCALE_USER_DEFAULT, static_cast<LCTYPE>(type), text, static_cast<int>(std::size(text)));
  return text;
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

LocalTime Win32Time::Now() const {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {.year = now.wYear,
          .month = now.wMonth,
          .day = now.wDay,
          .hour = now.wHour,
          .minute = now.wMinute,
          .second = now.wSecond,
          .dayOfWeek = now.wDayOfWeek};
}

std::wstring Win32Time::LongDate(const LocalTime& time) const {
  const SYSTEMTIME date = ToSystemTime(time);
  wchar_t text[256] = {};
  GetDateFormatW(LOCALE_USER_DEFAULT, DATE_LONGDATE, &date, nullptr, text, static_cast<int>(std::size(text)));
  return text;
}

// The system counts days from Monday.
std::wstring Win32Time::DayName(int dayOfWeek) const {
  return LocaleText(LOCALE_SDAYNAME1 + (dayOfWeek + 6) % 7);
}

std::wstring Win32Time::MonthName(int month) const { return LocaleText(LOCALE_SMONTHNAME1 + month - 1); }

// The loader would look for this library in the program folder first.
void Win32Time::SetFineResolution(bool isFine) {
  LateFunction<decltype(timeBeginPeriod)>(L"winmm.dll",
                                          isFine ? "timeBeginPeriod" : "timeEndPeriod")(kFineResolutionMs);
}

void Win32Time::Sleep(int ms) { ::Sleep(static_cast<DWORD>(ms)); }

void Win32Time::Pump(int waitMs) { loop_.Pump(waitMs); }

WindowHandle Win32Windows::Find(std::wstring_view className) {
  const HWND window = FindWindowW(std::wstring(className).c_str(), nullptr);
  return static_cast<WindowHandle>(reinterpret_cast<ULONG_PTR>(window));
}

bool Win32Windows::Raise(WindowHandle window) { return SetForegroundWindow(ToWindow(window)) != 0; }

bool Win32Windows::HasKeyboard(WindowHandle window) {
  return window != WindowHandle::None && GetForegroundWindow() == ToWindow(window);
}

void Win32Windows::Restore(WindowHandle window) { ShowWindow(ToWindow(window), SW_RESTORE); }

bool Win32Windows::IsMinimised(WindowHandle window) { return IsIconic(ToWindow(window)) != 0; }

void Win32Windows::SetStacking(WindowHandle window, Stacking stacking) {
  SetWindowPos(ToWindow(window), stacking == Stacking::TopMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

std::optional<PixelRect> Win32Windows::OuterRect(WindowHandle window) {
  RECT outer;
  if (!GetWindowRect(ToWindow(window), &outer)) return std::nullopt;
  return PixelRect{outer.left, outer.top, outer.right, outer.bottom};
}

std::optional<PixelRect> Win32Windows::ClientRect(WindowHandle window) {
  RECT client;
  if (!GetClientRect(ToWindow(window), &client)) return std::nullopt;
  POINT corner{0, 0};
  if (!ClientToScreen(ToWindow(window), &corner)) return std::nullopt;
  return PixelRect{corner.x, corner.y, corner.x + client.right, corner.y + client.bottom};
}

// The ANSI call: an ANSI window receives the byte unchanged, a Unicode window its character.
WindowService::PostOutcome Win32Windows::TryPost(WindowHandle window, unsigned char code) {
  // Without a window the system would post to the thread itself.
  if (window == WindowHandle::None) return PostOutcome::Refused;
  if (PostMessageA(ToWindow(window), WM_CHAR, code, 1)) return PostOutcome::Posted;
  const DWORD error = GetLastError();
  if (error == ERROR_ACCESS_DENIED) return PostOutcome::LacksRights;
  return error == ERROR_NOT_ENOUGH_QUOTA && IsWindow(ToWindow(window)) ? PostOutcome::QueueFull
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

// The mutex exists as long as the process, also if that is killed.
bool Win32Process::IsSecondInstance() {
  static const bool wasThere = [] {
    const HANDLE held = CreateMutexW(nullptr, FALSE, L"Local\\Trothline.Running");
    return held && GetLastError() == ERROR_ALREADY_EXISTS;
  }();
  return wasThere;
}

// random_device alone could be a fixed sequence on some systems.
std::uint32_t Win32Process::RandomSeed() {
  LARGE_INTEGER now;
  QueryPerformanceCounter(&now);
  std::seed_seq sources{static_cast<std::uint32_t>(now.QuadPart),
                        static_cast<std::uint32_t>(GetCurrentProcessId()),
                        static_cast<std::uint32_t>(std::random_device()())};
  std::uint32_t seed = 0;
  sources.generate(&seed, &seed + 1);
  return seed;
}

void Win32Process::EndNow(int exitCode) {
  ExitProcess(static_cast<UINT>(exitCode));
  __builtin_unreachable();
}

}  // namespace troth
