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

bool HeadlessWindows::Raise(WindowHandle window) {
  const HeadlessWindow* found = Alive(window);
  if (!found) return false;
  journal_.Add("raise " + HeadlessJournal::Readable(found->className));
  if (!found->refusesRaise) keyboard_ = window;
  return !found->refusesRaise;
}

void HeadlessWindows::Restore(WindowHandle window) {
  HeadlessWindow* found = Alive(window);
  if (!found) return;
  journal_.Add("restore " + HeadlessJournal::Readable(found->className));
  found->minimised = false;
}

bool HeadlessWindows::IsMinimised(WindowHandle window) {
  const HeadlessWindow* found = Alive(window);
  return found && found->minimised;
}

void HeadlessWindows::SetStacking(WindowHandle window, Stacking stacking) {
  HeadlessWindow* found = Alive(window);
  if (!found) return;
  journal_.Add((stacking == Stacking::TopMost ? "topmost " : "not topmost ") +
               HeadlessJournal::Readable(found->className));
  found->stacking = stacking;
}

// A minimised window is a small rectangle far off the screen.
std::optional<PixelRect> HeadlessWindows::OuterRect(WindowHandle window) {
  const HeadlessWindow* found = Alive(window);
  if (!found) return std::nullopt;
  if (found->minimised) return PixelRect{-32000, -32000, -31840, -31972};
  return found->place;
}

std::optional<PixelRect> HeadlessWindows::ClientRect(WindowHandle window) {
  const HeadlessWindow* found = Alive(window);
  if (!found) return std::nullopt;
  if (found->minimised) return PixelRect{-32000, -32000, -32000, -32000};
  const PixelRect& place = found->place;
  return PixelRect{place.left + found->frame, place.top + found->frame + found->titleBar,
                   place.right - found->frame, place.bottom - found->frame};
}

WindowService::PostOutcome HeadlessWindows::TryPost(WindowHandle window, unsigned char code) {
  HeadlessWindow* target = Alive(window);
  if (!target) return PostOutcome::Refused;
  if (target->hasMoreRights) return PostOutcome::LacksRights;
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
  if (number == 0 || number > windows_.size()) return nullptr;
  HeadlessWindow& found = windows_[number - 1];
  if (found.diesAt && time_.TickCount() >= *found.diesAt) found.alive = false;
  return found.alive ? &found : nullptr;
}

}  // namespace troth
