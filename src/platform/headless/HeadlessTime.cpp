#include "platform/headless/HeadlessTime.h"

#include <algorithm>

#include "platform/forms/Timer.h"

namespace troth {

void HeadlessTime::Sleep(int ms) {
  journal_.Add("sleep " + std::to_string(ms));
  now_ += static_cast<std::uint32_t>(ms);
}

void HeadlessTime::Pump(int waitMs) {
  if (ServeDue()) return;
  std::int32_t wait = waitMs;
  std::int32_t next = 0;
  if (NextDue(next)) wait = std::min(wait, next);
  now_ += static_cast<std::uint32_t>(wait);
  ServeDue();
}

void HeadlessTime::Advance(int ms) {
  const std::uint32_t end = now_ + static_cast<std::uint32_t>(ms);
  std::int32_t next = 0;
  while (Until(end) >= 0 && (ServeOneDue() || (NextDue(next) && next <= Until(end)))) {
    if (next > 0) now_ += static_cast<std::uint32_t>(next);
    next = 0;
  }
  if (Until(end) > 0) now_ = end;
}

void HeadlessTime::After(int ms, std::function<void()> act) {
  acts_.push_back({now_ + static_cast<std::uint32_t>(ms), std::move(act)});
}

void HeadlessTime::AdvanceToNextAct() {
  const auto first = std::min_element(
      acts_.begin(), acts_.end(), [this](const Act& a, const Act& b) { return Until(a.due) < Until(b.due); });
  if (first != acts_.end()) Advance(std::max(0, Until(first->due)));
}

void HeadlessTime::Watch(Timer& timer) { timers_.push_back({&timer, 0}), Restart(timer); }

void HeadlessTime::Unwatch(Timer& timer) {
  std::erase_if(timers_, [&](const Watched& watched) { return watched.timer == &timer; });
}

void HeadlessTime::Restart(Timer& timer) {
  for (Watched& watched : timers_)
    if (watched.timer == &timer) watched.due = now_ + static_cast<std::uint32_t>(timer.IntervalMs());
}

void HeadlessTime::SetTickCount(std::uint32_t now) {
  const std::uint32_t shift = now - now_;
  for (Watched& watched : timers_) watched.due += shift;
  for (Act& act : acts_) act.due += shift;
  now_ = now;
}

bool HeadlessTime::NextDue(std::int32_t& wait) const {
  bool found = false;
  const auto consider = [&](std::uint32_t due) {
    wait = found ? std::min(wait, Until(due)) : Until(due);
    found = true;
  };
  for (const Watched& watched : timers_)
    if (watched.timer->Enabled() && watched.timer->IntervalMs() > 0) consider(watched.due);
  for (const Act& act : acts_) consider(act.due);
  return found;
}

// A handler that takes time brings its timer due again: that one waits for the next round, or a slow timer
// would keep its caller for ever.
bool HeadlessTime::ServeDue() {
  const std::uint32_t start = now_;
  bool served = false;
  while (now_ == start && ServeOneDue()) served = true;
  return served;
}

// A timer that was due several times while the program slept comes once, as on a real desktop.
bool HeadlessTime::ServeOneDue() {
  for (auto act = acts_.begin(); act != acts_.end(); ++act) {
    if (Until(act->due) > 0) continue;
    const std::function<void()> run = std::move(act->act);
    acts_.erase(act);
    run();
    return true;
  }
  for (Watched& watched : timers_) {
    Timer& timer = *watched.timer;
    if (!timer.Enabled() || timer.IntervalMs() <= 0 || Until(watched.due) > 0) continue;
    watched.due = now_ + static_cast<std::uint32_t>(timer.IntervalMs());
    timer.IntervalPassed();
    return true;
  }
  return false;
}

}  // namespace troth
