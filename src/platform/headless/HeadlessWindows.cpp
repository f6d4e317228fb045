#include "platform/headless/HeadlessWindows.h"

namespace troth {

std::string HeadlessWindow::HeardText() const {
  std::string text;
  for (const HeardCharacter& character : heard) text += static_cast<char>(character.code);
  return text;
}

HeadlessWindow& HeadlessWindows::Open(std::wstring className) {
  windows_.push_back({.className = std::move(className), .heard = {}});
  windows_.back().lastTaken = time_.TickCount();
  return windows_.back();
}

WindowHandle HeadlessWindows::Find(std::wstring_view className) {
  for (std::size_t i = 0; i < windows_.size(); ++i)
    if (windows_[i].alive && windows_[i].className == className) return static_cast<WindowHandle>(i + 1);
  return WindowHandle::None;
}

void HeadlessWindows::Raise(WindowHandle window) {
  if (const HeadlessWindow* found = Alive(window))
    journal_.Add("raise " + HeadlessJournal::Readable(found->className));
}

std::optional<PixelRect> HeadlessWindows::OuterRect(WindowHandle window) {
  const HeadlessWindow* found = Alive(window);
  if (!found) return std::nullopt;
  return found->place;
}

WindowService::PostOutcome HeadlessWindows::TryPost(WindowHandle window, unsigned char code) {
  HeadlessWindow* target = Alive(window);
  if (!target) return PostOutcome::Refused;
  const std::uint32_t now = time_.TickCount();
  const std::size_t taken = (now - target->lastTaken) * target->takesPerMs;
  target->outstanding -= std::min(target->outstanding, taken);
  target->lastTaken = now;
  if (target->outstanding >= target->capacity) return PostOutcome::QueueFull;
  ++target->outstanding;
  target->heard.push_back({code, now});
  journal_.Add("post " + std::to_string(code));
  if (target->heard.size() >= target->diesAfter) target->alive = false;
  return PostOutcome::Posted;
}

HeadlessWindow* HeadlessWindows::Alive(WindowHandle window) {
  const auto number = static_cast<std::size_t>(window);
  if (number == 0 || number > windows_.size() || !windows_[number - 1].alive) return nullptr;
  return &windows_[number - 1];
}

}  // namespace troth
