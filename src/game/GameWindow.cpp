#include "game/GameWindow.h"

#include <windowsx.h>

#include <algorithm>
#include <string>
#include <utility>

namespace troth::game {
namespace {

using namespace std::chrono_literals;

constexpr auto kFrame = 16ms;         // idle: at most 60 pictures a second
constexpr auto kBusyFrame = 120ms;    // in a stream of characters, which each picture delays
constexpr auto kFlushInterval = 4ms;  // the longest delay of the transcript
constexpr UINT_PTR kCaretTimer = 1;
constexpr UINT kCaretBlinkMs = 530;
constexpr int kTranscriptLost = 3;

// The window is an ANSI window: only then does the posted byte arrive unchanged.
std::string Narrow(const std::wstring& text) {
  const int length = static_cast<int>(text.size());
  const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

}  // namespace

GameWindow::GameWindow(GameOptions options, Transcript transcript)
    : options_(std::move(options)), transcript_(std::move(transcript)), bookOpen_(options_.bookOpen) {
  chat_.Narrate("Dusk settles on the Kestrel Moors, and the wind lies down in the heather.");
  chat_.Narrate("Candles are lit in Cairn Chapel. The guests look to you, Officiant.");
}

bool GameWindow::Open(int showCommand) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  const std::string className = Narrow(options_.windowClass);
  WNDCLASSEXA windowClass{};
  windowClass.cbSize = sizeof(windowClass);
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = instance;
  windowClass.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(1));
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = className.c_str();
  if (RegisterClassExA(&windowClass) == 0) return false;

  const auto [width, height] = options_.size.value_or(std::pair{CW_USEDEFAULT, CW_USEDEFAULT});
  const auto [x, y] = options_.position.value_or(std::pair{CW_USEDEFAULT, CW_USEDEFAULT});
  CreateWindowExA(0, className.c_str(), Narrow(options_.title).c_str(), WS_OVERLAPPEDWINDOW, x, y, width,
                  height, nullptr, nullptr, instance, this);
  if (window_ == nullptr) return false;
  if (!options_.size) TakeUsualSize();
  if (options_.stallAfter) {
    const std::wstring name = L"KestrelMoors.Resume." + std::to_wstring(GetCurrentProcessId());
    resume_.reset(CreateEventW(nullptr, FALSE, FALSE, name.c_str()));
  }
  ShowWindow(window_, showCommand);
  return true;
}

// 960x640 at 96 DPI, scaled, or as much of it as fits on the screen.
void GameWindow::TakeUsualSize() {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(window_, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& screen = monitor.rcWork;
  const int dpi = static_cast<int>(GetDpiForWindow(window_));
  const int width = std::min(MulDiv(960, dpi, 96), static_cast<int>(screen.right - screen.left));
  const int height = std::min(MulDiv(640, dpi, 96), static_cast<int>(screen.bottom - screen.top) * 9 / 10);
  SetWindowPos(window_, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

int GameWindow::Run() {
  if (options_.stallAfter == 0U) {
    ShowNow();
    Stall();
  }
  for (;;) {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) return static_cast<int>(message.wParam);
      TranslateMessage(&message);
      DispatchMessageA(&message);
      CatchUp();
    }
    const DWORD wait = Settle();
    MsgWaitForMultipleObjectsEx(0, nullptr, wait, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
}

LRESULT CALLBACK GameWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self = static_cast<GameWindow*>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
    self->window_ = window;
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
  }
  auto* self = reinterpret_cast<GameWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  return self == nullptr ? DefWindowProcA(window, message, wParam, lParam)
                         : self->Handle(message, wParam, lParam);
}

LRESULT GameWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CHAR:
      TakeCharacter(wParam, lParam);
      return 0;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return 1;  // the picture covers the whole window
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) Replace();
      return 0;
    case WM_DPICHANGED: {
      const RECT& fit = *reinterpret_cast<const RECT*>(lParam);
      SetWindowPos(window_, nullptr, fit.left, fit.top, fit.right - fit.left, fit.bottom - fit.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
      Replace();
      return 0;
    }
    case WM_ENTERSIZEMOVE:
    case WM_ENTERMENULOOP:
      ++systemLoops_;
      return 0;
    case WM_EXITSIZEMOVE:
    case WM_EXITMENULOOP:
      systemLoops_ = std::max(0, systemLoops_ - 1);
      return 0;
    case WM_DESTROY:
      FlushTranscript();
      PostQuitMessage(exitCode_);
      return 0;
    case WM_NCDESTROY:
      SetWindowLongPtrA(window_, GWLP_USERDATA, 0);
      return DefWindowProcA(window_, message, wParam, lParam);
    default:
      return HandleInput(message, wParam, lParam);
  }
}

LRESULT GameWindow::HandleInput(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFOCUS:
      StartCaret();
      return 0;
    case WM_KILLFOCUS:
      StopCaret();
      return 0;
    case WM_TIMER:
      ShowCaret(!caretOn_);
      return 0;
    case WM_KEYDOWN:
      TakeKey(wParam);
      return 0;
    case WM_MOUSEWHEEL:
      TakeWheel(GET_WHEEL_DELTA_WPARAM(wParam), {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(window_);
      if (IsRibbonAt({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) ToggleBook();
      return 0;
    case WM_SETCURSOR: {
      POINT at{};
      GetCursorPos(&at);
      ScreenToClient(window_, &at);
      if (LOWORD(lParam) != HTCLIENT || !IsRibbonAt(at)) break;
      SetCursor(LoadCursorW(nullptr, IDC_HAND));
      return TRUE;
    }
    default:
      break;
  }
  return DefWindowProcA(window_, message, wParam, lParam);
}

void GameWindow::TakeCharacter(WPARAM code, LPARAM second) {
  ++received_;
  transcript_.Add(code, second);
  const auto byte = static_cast<unsigned char>(code);
  if (bookOpen_) {
    book_.Type(byte);
    view_.FollowBookCursor();
  } else {
    chat_.Type(byte);
  }
  MarkStale();
  if (options_.slowMs > 0) {
    FlushTranscript();
    Sleep(static_cast<DWORD>(options_.slowMs));
  }
  if (options_.stallAfter == received_) Stall();
  if (systemLoops_ == 0) return;
  FlushTranscript();
  ShowNow();
}

// Does not process messages on purpose: other programs see a hung game.
void GameWindow::Stall() {
  FlushTranscript();
  WaitForSingleObject(resume_.get(), options_.stallMs ? static_cast<DWORD>(*options_.stallMs) : INFINITE);
}

void GameWindow::TakeKey(WPARAM key) {
  switch (key) {
    case VK_F2:
      ToggleBook();
      return;
    case VK_ESCAPE:
      if (bookOpen_) ToggleBook();
      return;
    case VK_PRIOR:
      ScrollPage(1);
      return;
    case VK_NEXT:
      ScrollPage(-1);
      return;
    default:
      MoveCursor(key);
  }
}

void GameWindow::MoveCursor(WPARAM key) {
  EditBuffer& text = bookOpen_ ? book_.writing() : chat_.input();
  switch (key) {
    case VK_LEFT:
      text.MoveLeft();
      break;
    case VK_RIGHT:
      text.MoveRight();
      break;
    case VK_HOME:
      text.MoveToLineStart();
      break;
    case VK_END:
      text.MoveToLineEnd();
      break;
    case VK_UP:
      text.MoveLine(-1);
      break;
    case VK_DOWN:
      text.MoveLine(1);
      break;
    case VK_DELETE:
      text.EraseAfter();
      break;
    default:
      return;
  }
  view_.FollowBookCursor();
  if (GetFocus() == window_) StartCaret();
  MarkStale();
}

void GameWindow::ScrollPage(int pages) {
  if (bookOpen_) {
    view_.ScrollBook(pages * view_.BookPageRows());
  } else {
    view_.ScrollChat(pages * view_.ChatPage());
  }
  MarkStale();
}

void GameWindow::TakeWheel(int delta, POINT screen) {
  constexpr int kRowsPerNotch = 3;
  ScreenToClient(window_, &screen);
  wheelRest_ += delta * kRowsPerNotch;
  const int rows = wheelRest_ / WHEEL_DELTA;  // fine wheels send parts of a notch
  wheelRest_ -= rows * WHEEL_DELTA;
  if (view_.layout().book.Contains(screen.x, screen.y)) {
    view_.ScrollBook(rows);
  } else {
    view_.ScrollChat(rows);
  }
  MarkStale();
}

bool GameWindow::IsRibbonAt(POINT client) const { return view_.layout().ribbon.Contains(client.x, client.y); }

void GameWindow::ToggleBook() {
  bookOpen_ = !bookOpen_;
  Replace();
}

void GameWindow::Replace() {
  RECT client{};
  GetClientRect(window_, &client);
  view_.Place(client.right, client.bottom, GetDpiForWindow(window_), bookOpen_);
  MarkStale();
  if (systemLoops_ > 0) ShowNow();
}

void GameWindow::MarkStale() {
  frameStale_ = true;
  if (showWanted_) return;
  showWanted_ = true;
  wantedSince_ = Clock::now();
}

void GameWindow::Paint() {
  PAINTSTRUCT paint;
  const HDC device = BeginPaint(window_, &paint);
  if (frameStale_) {
    view_.Render({chat_, book_, bookOpen_, received_});
    frameStale_ = false;
  }
  view_.Present(device, caretOn_);
  EndPaint(window_, &paint);
}

void GameWindow::StartCaret() {
  SetTimer(window_, kCaretTimer, kCaretBlinkMs, nullptr);
  ShowCaret(true);
}

void GameWindow::StopCaret() {
  KillTimer(window_, kCaretTimer);
  ShowCaret(false);
}

void GameWindow::ShowCaret(bool on) {
  caretOn_ = on;
  const RECT bounds = view_.CaretBounds();
  InvalidateRect(window_, &bounds, FALSE);
}

void GameWindow::CatchUp() {
  const auto now = Clock::now();
  if (now - lastFlushed_ >= kFlushInterval) FlushTranscript();
  if (showWanted_ && now - wantedSince_ >= kBusyFrame) ShowNow();
}

DWORD GameWindow::Settle() {
  FlushTranscript();
  if (!showWanted_) return INFINITE;
  const auto since = Clock::now() - lastShown_;
  if (since < kFrame) {
    const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(kFrame - since);
    return static_cast<DWORD>(rest.count()) + 1;
  }
  ShowNow();
  return 0;
}

void GameWindow::FlushTranscript() {
  lastFlushed_ = Clock::now();
  // An incomplete record would be mistaken for a complete one.
  if (transcript_.Flush()) return;
  exitCode_ = kTranscriptLost;
  PostQuitMessage(exitCode_);
}

void GameWindow::ShowNow() {
  showWanted_ = false;
  InvalidateRect(window_, nullptr, FALSE);
  UpdateWindow(window_);
  lastShown_ = Clock::now();
}

}  // namespace troth::game
