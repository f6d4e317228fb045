// The frames of the hidden game, in its real window: how many come late.
#include <algorithm>

#include "bench/windows/Measure.h"
#include "core/Program.h"
#include "guide/frmShip.h"
#include "platform/win32/Win32Desktop.h"

namespace troth::bench {

namespace {

constexpr int kFrames = 1000;
constexpr std::uint32_t kFrameMs = 25;
constexpr std::uint32_t kToleranceMs = 5;
constexpr double kMostLate = 0.01;

// The system's time. Notes each tick at which a frame is due, as the game does, and closes it at the end.
class FrameClock final : public TimeService {
 public:
  explicit FrameClock(TimeService& time) : time_(time) {}

  std::uint32_t TickCount() const override {
    const std::uint32_t now = time_.TickCount();
    if (last_ == 0) last_ = now;
    if (now - last_ >= kFrameMs) {
      late_ += now - last_ > kFrameMs + kToleranceMs;
      ++frames_;
      last_ = now;
    }
    return now;
  }
  void Pump(int waitMs) override {
    if (frames_ >= kFrames) OnEnd();
    time_.Pump(waitMs);
  }
  LocalTime Now() const override { return time_.Now(); }
  std::wstring LongDate(const LocalTime& time) const override { return time_.LongDate(time); }
  std::wstring DayName(int dayOfWeek) const override { return time_.DayName(dayOfWeek); }
  std::wstring MonthName(int month) const override { return time_.MonthName(month); }
  void Sleep(int ms) override { time_.Sleep(ms); }

  double ShareOfLateFrames() const { return static_cast<double>(late_) / std::max(frames_, 1); }

  std::function<void()> OnEnd;

 private:
  void SetFineResolution(bool) override {}

  TimeService& time_;
  mutable std::uint32_t last_ = 0;
  mutable int frames_ = 0;
  mutable int late_ = 0;
};

}  // namespace

void MeasureShip() {
  Win32Desktop desktop;
  const Platform& real = desktop.platform;
  FrameClock clock(real.time);
  Platform platform{.forms = real.forms,
                    .windows = real.windows,
                    .keyboard = real.keyboard,
                    .time = clock,
                    .files = real.files,
                    .settings = real.settings,
                    .shell = real.shell,
                    .dialogs = real.dialogs,
                    .text = real.text,
                    .process = real.process,
                    .graphics = real.graphics};
  Program program(platform);
  frmShip& ship = program.Make<frmShip>();
  bool isOpen = true;
  clock.OnEnd = [&] {
    if (std::exchange(isOpen, false)) ship.Unload();
  };
  ship.Show();
  while (isOpen) real.time.Pump(kFrameMs);
  Report("late frames of the hidden game", clock.ShareOfLateFrames(), "",
         {.atMost = true, .value = kMostLate});
}

}  // namespace troth::bench
