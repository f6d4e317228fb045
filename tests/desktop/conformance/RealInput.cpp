#include "tests/desktop/conformance/RealInput.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "tests/desktop/SystemWindows.h"

namespace troth {

namespace {

constexpr DWORD kDeadlineMs = 5000;
// A window manager gives the keyboard to a new window some time after it was shown, and would take it back
// from the one that the test has activated since.
constexpr DWORD kQuietMs = 60;
constexpr UINT kMarker = WM_APP + 1;
// A key that no control knows, sent behind the real ones: once it has come out of the queue, they have too.
constexpr WORD kMarkerKey = VK_F24;
constexpr wchar_t kMarkerClass[] = L"TrothConformanceMarker";

// One instance at a time: a hook has no data of its own.
RealInput* current = nullptr;

// A character that no key of this keyboard gives arrives as itself.
void AddCharacter(std::vector<INPUT>& inputs, wchar_t character) {
  for (const bool up : {false, true}) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = character;
    input.ki.dwFlags = KEYEVENTF_UNICODE | (up ? KEYEVENTF_KEYUP : 0u);
    inputs.push_back(input);
  }
}

}  // namespace

RealInput::RealInput(TimeService& time) : time_(time) {
  WNDCLASSW own{};
  own.lpfnWndProc = &RealInput::WindowProc;
  own.hInstance = GetModuleHandleW(nullptr);
  own.lpszClassName = kMarkerClass;
  RegisterClassW(&own);  // fails from the second time on, and need not succeed then
  marker_ =
      CreateWindowExW(0, kMarkerClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, own.hInstance, nullptr);
  hook_ = SetWindowsHookExW(WH_GETMESSAGE, &RealInput::SeeMessage, nullptr, GetCurrentThreadId());
  current = this;
}

RealInput::~RealInput() {
  UnhookWindowsHookEx(hook_);
  DestroyWindow(marker_);
  current = nullptr;
}

LRESULT CALLBACK RealInput::SeeMessage(int code, WPARAM wParam, LPARAM lParam) {
  auto* message = reinterpret_cast<MSG*>(lParam);
  const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
  if (code >= 0 && wParam == PM_REMOVE && isKey && message->wParam == kMarkerKey) {
    if (current && (message->message == WM_KEYUP || message->message == WM_SYSKEYUP))
      ++current->markerKeysSeen_;
    message->message = WM_NULL;
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK RealInput::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kMarker) return DefWindowProcW(window, message, wParam, lParam);
  if (current) current->markersSeen_ = lParam;
  return 0;
}

void RealInput::PumpUntil(const std::function<bool()>& done, const std::string& what) {
  const std::uint32_t start = time_.TickCount();
  while (!done()) {
    if (time_.TickCount() - start > kDeadlineMs) throw std::runtime_error("waited in vain for " + what);
    time_.Pump(10);
  }
}

void RealInput::Settle() {
  for (int round = 0; round < 2; ++round) {
    const LPARAM number = ++markersSent_;
    PostMessageW(marker_, kMarker, 0, number);
    PumpUntil([&] { return markersSeen_ >= number; }, "the queue to be served");
  }
  TakeForeground();
  if (GetActiveWindow() == settledWindow_) return;
  const std::uint32_t start = time_.TickCount();
  while (time_.TickCount() - start < kQuietMs) time_.Pump(10);
  TakeForeground();
  settledWindow_ = GetActiveWindow();
}

void RealInput::TakeForeground() {
  const std::uint32_t start = time_.TickCount();
  while (GetActiveWindow() && GetForegroundWindow() != GetActiveWindow()) {
    if (time_.TickCount() - start > kDeadlineMs)
      throw std::runtime_error("the window does not come in front");
    SetForegroundWindow(GetActiveWindow());
    time_.Pump(10);
  }
}

void RealInput::Activate(HWND window) {
  if (GetActiveWindow() == window) return;
  SetForegroundWindow(window);
  PumpUntil([&] { return GetActiveWindow() == window; }, "a window to become active");
  Settle();
}

void RealInput::Reach(HWND window) {
  const HWND form = GetAncestor(window, GA_ROOT);
  if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !IsWindowEnabled(form))
    throw std::runtime_error("the control is hidden, disabled or behind a modal window");
  Activate(form);
}

void RealInput::Click(HWND window, POINT point) {
  Reach(window);
  const LPARAM place = MAKELPARAM(point.x, point.y);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
  PostMessageW(window, WM_LBUTTONUP, 0, place);
  Settle();
}

void RealInput::RightClick(HWND window, POINT point) {
  Reach(window);
  const LPARAM place = MAKELPARAM(point.x, point.y);
  PostMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, place);
  PostMessageW(window, WM_RBUTTONUP, 0, place);
  Settle();
}

void RealInput::DoubleClick(HWND window, POINT point) {
  Reach(window);
  const LPARAM place = MAKELPARAM(point.x, point.y);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
  PostMessageW(window, WM_LBUTTONUP, 0, place);
  PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
  PostMessageW(window, WM_LBUTTONUP, 0, place);
  Settle();
}

void RealInput::PressInMenu(const std::vector<int>& keyCodes) {
  std::vector<INPUT> inputs;
  for (const int keyCode : keyCodes) AddKey(inputs, keyCode, 0);
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void RealInput::Press(int keyCode, int shift) {
  std::vector<INPUT> inputs;
  AddKey(inputs, keyCode, shift);
  Send(std::move(inputs));
}

void RealInput::Type(std::wstring_view text) {
  std::vector<INPUT> inputs;
  for (const wchar_t c : text) {
    const SHORT key = VkKeyScanW(c);
    if (key == -1)
      AddCharacter(inputs, c);
    else
      AddKey(inputs, LOBYTE(key), HIBYTE(key));
  }
  Send(std::move(inputs));
}

// The marker is lost with the window if a key takes the last one away.
void RealInput::Send(std::vector<INPUT> inputs) {
  TakeForeground();
  AddKey(inputs, kMarkerKey, 0);
  const int number = ++markerKeysSent_;
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
  PumpUntil([&] { return markerKeysSeen_ >= number || !GetActiveWindow(); }, "the keys to arrive");
  Settle();
  markerKeysSeen_ = std::max(markerKeysSeen_, number);
}

}  // namespace troth
