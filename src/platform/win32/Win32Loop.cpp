#include "platform/win32/Win32Loop.h"

#include <algorithm>

namespace troth {

namespace {
// A round of the pump serves no more than this, so that a flood of messages cannot keep the caller for ever.
constexpr int kMessagesARound = 200;
// Nor may a timer whose handler takes longer than its interval.
constexpr ULONGLONG kMsARound = 100;
}  // namespace

LoopWindow* Win32Loop::FormOf(HWND window) const {
  if (!window) return nullptr;
  const HWND root = GetAncestor(window, GA_ROOT);
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [root](const LoopWindow* form) { return form->Window() == root; });
  return found == windows_.end() ? nullptr : *found;
}

void Win32Loop::ServeNext() {
  MSG message;
  if (GetMessageW(&message, nullptr, 0, 0) > 0) Serve(message);
}

void Win32Loop::Pump(int waitMs) {
  if (ServeWaiting() || waitMs <= 0) return;
  MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(waitMs), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  ServeWaiting();
}

bool Win32Loop::ServeWaiting() {
  MSG message;
  int served = 0;
  const ULONGLONG start = GetTickCount64();
  while (served < kMessagesARound && GetTickCount64() - start < kMsARound &&
         PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    Serve(message);
    ++served;
  }
  return served > 0;
}

void Win32Loop::Serve(MSG& message) {
  const std::size_t buried = graveyard_.size();
  LoopWindow* form = FormOf(message.hwnd);
  const HWND window = form ? form->Window() : nullptr;
  // The handler of a key may take its form down.
  const bool taken =
      form && (form->TakeKey(message) || !FormOf(window) || IsDialogMessageW(window, &message));
  if (!taken) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  DestroyBuried(buried);
}

// Those buried by the messages around this one wait for their own turn.
void Win32Loop::DestroyBuried(std::size_t from) {
  while (graveyard_.size() > from) {
    const HWND window = graveyard_.back();
    graveyard_.pop_back();
    DestroyWindow(window);
  }
}

void Win32Loop::Add(LoopWindow& window) {
  windows_.push_back(&window);
  if (!locks_.empty()) locks_.back()->Lock(window);
}

InputLock::InputLock(Win32Loop& loop, const LoopWindow* free) : loop_(loop), free_(free) {
  for (const LoopWindow* form : loop.Windows())
    if (form != free) Lock(*form);
  freed_ = free && !IsWindowEnabled(free->Window());
  if (freed_) EnableWindow(free->Window(), TRUE);
  loop.locks_.push_back(this);
}

// A form that has gone in the meantime is no longer in the loop, and must not be touched.
InputLock::~InputLock() {
  std::erase(loop_.locks_, this);
  for (const LoopWindow* form : locked_)
    if (IsAlive(form)) EnableWindow(form->Window(), TRUE);
  if (freed_ && IsAlive(free_)) EnableWindow(free_->Window(), FALSE);
}

void InputLock::Lock(const LoopWindow& form) {
  if (!IsWindowEnabled(form.Window())) return;
  EnableWindow(form.Window(), FALSE);
  locked_.push_back(&form);
}

bool InputLock::IsAlive(const LoopWindow* form) const {
  const auto& alive = loop_.Windows();
  return std::find(alive.begin(), alive.end(), form) != alive.end();
}

}  // namespace troth
