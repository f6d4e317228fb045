// The clock of the run, local date and time, and the two ways of waiting.
#pragma once

#include <cstdint>
#include <string>

namespace troth {

// Date and time of day where the user is.
struct LocalTime {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;    // 1 to 31
  int hour = 0;   // 0 to 23
  int minute = 0;
  int second = 0;
  int dayOfWeek = 0;  // 0 is Sunday
  friend bool operator==(const LocalTime&, const LocalTime&) = default;
};

class TimeService {
 public:
  virtual ~TimeService() = default;

  // Milliseconds since an arbitrary start; wraps, so only differences of two readings mean anything.
  virtual std::uint32_t TickCount() const = 0;

  virtual LocalTime Now() const = 0;

  // The date in the user's language and in the system's long format: "Friday, June 15, 2001".
  virtual std::wstring LongDate(const LocalTime& time) const = 0;

  // Full names in the user's language. Days count from 0 (Sunday), months from 1.
  virtual std::wstring DayName(int dayOfWeek) const = 0;
  virtual std::wstring MonthName(int month) const = 0;

  // Blocks the whole program: no handler, timer or hotkey runs meanwhile. Up to 16 ms longer than asked
  // unless a FineTimer is alive.
  virtual void Sleep(int ms) = 0;

  // One round of the message pump: processes the waiting messages and timers of the program. If there are
  // none, waits for the first message, but at most `waitMs`. Any other handler can run inside.
  virtual void Pump(int waitMs = 0) = 0;

 private:
  friend class FineTimer;
  virtual void SetFineResolution(bool isFine) = 0;
};

// While it lives, waits last as long as asked to within a millisecond or two. It costs power: hold it during
// paced output, not for the whole run. Several may be alive at the same time.
class FineTimer {
 public:
  explicit FineTimer(TimeService& time) : time_(time) { time_.SetFineResolution(true); }
  ~FineTimer() { time_.SetFineResolution(false); }
  FineTimer(const FineTimer&) = delete;
  FineTimer& operator=(const FineTimer&) = delete;

 private:
  TimeService& time_;
};

}  // namespace troth
