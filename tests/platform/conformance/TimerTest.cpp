// Timers of forms, and the two ways of waiting.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class Timers : public ConformanceTest {
 protected:
  // How often the timer comes in that time.
  int BeatsIn(int ms) {
    beats_ = 0;
    desktop->LetTimePass(ms);
    return beats_;
  }

  DeskForm form{platform};
  int beats_ = 0;

  void SetUp() override {
    form.tmrBeat.OnTimer = [this] { ++beats_; };
    Show(form);
  }
};

TEST_F(Timers, ComeOnceAnIntervalWhileEnabled) {
  EXPECT_EQ(BeatsIn(150), 0) << "a disabled timer came";
  form.tmrBeat.SetEnabled(true);
  const int beats = BeatsIn(550);
  EXPECT_GE(beats, 4);
  EXPECT_LE(beats, 5);
  form.tmrBeat.SetEnabled(false);
  EXPECT_EQ(BeatsIn(250), 0);
}

TEST_F(Timers, EnablingStartsAWholeNewInterval) {
  form.tmrBeat.SetIntervalMs(200);
  for (int round = 0; round < 4; ++round) {
    form.tmrBeat.SetEnabled(true);
    EXPECT_EQ(BeatsIn(100), 0) << "round " << round;
    form.tmrBeat.SetEnabled(false);
  }
}

TEST_F(Timers, SleepLetsNoneInAndThePumpLetsThemInOnce) {
  form.tmrBeat.SetIntervalMs(40);
  form.tmrBeat.SetEnabled(true);
  beats_ = 0;
  platform.time.Sleep(170);
  EXPECT_EQ(beats_, 0);
  platform.time.Pump();
  EXPECT_EQ(beats_, 1) << "what was missed in a sleep comes once";
}

// As when each of them waits for a game that hangs.
TEST_F(Timers, DoNotKeepThePumpForEverWhenTheyTakeLongerThanTheirInterval) {
  form.tmrBeat.SetIntervalMs(20);
  form.tmrBeat.OnTimer = [this] {
    ++beats_;
    platform.time.Sleep(50);
  };
  form.tmrBeat.SetEnabled(true);
  platform.time.Sleep(50);
  const std::uint32_t start = platform.time.TickCount();
  platform.time.Pump();
  EXPECT_GE(beats_, 1);
  EXPECT_LT(platform.time.TickCount() - start, 1000u);
  EXPECT_LE(BeatsIn(200), 10);
}

TEST_F(Timers, GoOnWhileTheFormIsHiddenAndEndWithIt) {
  form.tmrBeat.SetIntervalMs(20);
  form.tmrBeat.SetEnabled(true);
  form.Hide();
  EXPECT_GE(BeatsIn(150), 3);
  form.Unload();
  EXPECT_EQ(BeatsIn(100), 0);
  Show(form);
  EXPECT_GE(BeatsIn(150), 3) << "an enabled timer starts again with its form";
}

using Waiting = ConformanceTest;

TEST_F(Waiting, PumpWaitsNoLongerThanToldAndWakesForWhatComes) {
  Settle();
  std::uint32_t start = platform.time.TickCount();
  for (int i = 0; i < 5; ++i) platform.time.Pump(20);
  EXPECT_LT(platform.time.TickCount() - start, 1000u);
  bool came = false;
  desktop->Later(30, [&] { came = true; });
  start = platform.time.TickCount();
  for (int i = 0; i < 20 && !came; ++i) platform.time.Pump(2000);
  EXPECT_TRUE(came);
  EXPECT_LT(platform.time.TickCount() - start, 1500u);
}

}  // namespace

}  // namespace troth
