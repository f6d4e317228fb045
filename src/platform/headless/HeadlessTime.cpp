#include "platform/headless/HeadlessTime.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "platform/forms/Timer.h"

namespace troth {

namespace {

constexpr std::array<const wchar_t*, 7> kDays = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                                 L"Thursday", L"Friday", L"Saturday"};
constexpr std::array<const wchar_t*, 12> kMonths = {L"January",   L"February", L"March",    L"April",
                                                    L"May",       L"June",     L"July",     L"August",
                                                    L"September", L"October",  L"November", L"December"};

}  // namespace

LocalTime HeadlessTime::Now() const {
  namespace chrono = std::chrono;
  const chrono::year_month_day start{chrono::year(localStart_.year),
                                     chrono::month(static_cast<unsigned>(localStart_.month)),
                                     chrono::day(static_cast<unsigned>(localStart_.day))};
  const auto now = chrono::sys_days(start) + chrono::hours(localStart_.hour) +
                   chrono::minutes(localStart_.minute) +
                   chrono::seconds(localStart_.second + static_cast<int>((now_ - localStartTick_) / 1000));
  const auto today = chrono::floor<chrono::days>(now);
  const chrono::year_month_day date(today);
  const chrono::hh_mm_ss time(now - today);
  return {.year = static_cast<int>(date.year()),
          .month = static_cast<int>(static_cast<unsigned>(date.month())),
          .day = static_cast<int>(static_cast<unsigned>(date.day())),
          .hour = static_cast<int>(time.hours().count()),
          .minute = static_cast<int>(time.minutes().count()),
          .second = static_cast<int>(time.seconds().count()),
          .dayOfWeek = static_cast<int>(chrono::weekday(today).c_encoding())};
}

void HeadlessTime::SetNow(const LocalTime& time) {
  localStart_ = time;
  localStartTick_ = now_;
}

std::wstring HeadlessTime::LongDate(const LocalTime& time) const {
  return DayName(time.dayOfWeek) + L", " + MonthName(time.month) + L' ' + std::to_wstring(time.day) + L", " +
         std::to_wstring(time.year);
}

std::wstring HeadlessTime::DayName(int dayOfWeek) const {
  return kDays.at(static_cast<std::size_t>(dayOfWeek));
}

std::wstring HeadlessTime::MonthName(int month) const {
  return kMonths.at(static_cast<std::size_t>(month) - 1);
}

void HeadlessTime::Sleep(int ms) {
  journal_.Add("sleep " + std::to_string(ms));
  now_ += static_cast<std::uint32_t>(ms);
}

void HeadlessTime::Pump(int waitMs) {
  PumpOnce(waitMs);
  if (onPump) onPump();
}

void HeadlessTime::PumpOnce(int waitMs) {
  if (ServeDue()) return;
  std::int32_t wait = waitMs;
  if (waitMs == 0 && ++idleRounds_ == kIdleRoundsAMs) {
    idleRounds_ = 0;
    wait = 1;
  }
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
  localStartTick_ += shift;
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
