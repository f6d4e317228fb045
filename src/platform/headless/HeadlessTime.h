// The virtual clock. It moves when the test says so (Advance), while the program sleeps, and while it waits
// in the pump. Timers and the scripted acts of the user become due on it; a sleep serves none of them. Local
// time moves with it, in English, from 15 June 2001, 21:05:03, unless the test sets another.
#pragma once

#include <functional>
#include <vector>

#include "platform/headless/HeadlessJournal.h"
#include "platform/services/TimeService.h"

namespace troth {

class Timer;

class HeadlessTime final : public TimeService {
 public:
  explicit HeadlessTime(HeadlessJournal& journal) : journal_(journal) {}

  std::uint32_t TickCount() const override { return now_; }
  LocalTime Now() const override;
  std::wstring LongDate(const LocalTime& time) const override;
  std::wstring DayName(int dayOfWeek) const override;
  std::wstring MonthName(int month) const override;
  void Sleep(int ms) override;
  void Pump(int waitMs) override;

  // --- For tests and the headless forms. ---

  // Lets time pass and serves whatever comes due on the way.
  void Advance(int ms);

  // Something that happens outside the program in `ms` from now: the user acts, a hotkey arrives.
  void After(int ms, std::function<void()> act);
  bool HasPendingActs() const { return !acts_.empty(); }
  // Runs after each time that the program has served what was due.
  std::function<void()> onPump;
  // Moves to the next pending act, serving timers on the way.
  void AdvanceToNextAct();

  void Watch(Timer& timer);
  void Unwatch(Timer& timer);
  void Restart(Timer& timer);

  void SetTickCount(std::uint32_t now);

  // The day of the week follows from the date.
  void SetNow(const LocalTime& time);

 private:
  void PumpOnce(int waitMs);
  void SetFineResolution(bool) override {}

  struct Watched {
    Timer* timer;
    std::uint32_t due;
  };
  struct Act {
    std::uint32_t due;
    std::function<void()> act;
  };

  // Signed distance: how long from now until `due`, negative if overdue. Correct across the wrap of the
  // clock.
  std::int32_t Until(std::uint32_t due) const { return static_cast<std::int32_t>(due - now_); }
  bool NextDue(std::int32_t& wait) const;
  bool ServeDue();
  bool ServeOneDue();

  // A loop that polls without a wait must not stand still: so many rounds in which nothing happens take a
  // millisecond.
  static constexpr int kIdleRoundsAMs = 100;

  HeadlessJournal& journal_;
  int idleRounds_ = 0;
  std::uint32_t now_ = 1'000'000;
  LocalTime localStart_{.year = 2001, .month = 6, .day = 15, .hour = 21, .minute = 5, .second = 3};
  std::uint32_t localStartTick_ = now_;
  std::vector<Watched> timers_;
  std::vector<Act> acts_;
};

}  // namespace troth
