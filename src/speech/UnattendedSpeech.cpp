#include "speech/UnattendedSpeech.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/Settings.h"
#include "platform/services/TimeService.h"
#include "script/ScriptLine.h"

namespace troth {

namespace {

constexpr int kPeriodMs = 200;
constexpr int kShortestTickMs = 10;
constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kYellow = Rgb(255, 255, 0);
constexpr Color kWhite = Rgb(255, 255, 255);

}  // namespace

void UnattendedSpeech::Start(int intervalMs) {
  window_.tmrLearn.SetEnabled(false);
  window_.MOptionsLearning.SetChecked(false);
  window_.lblDebug.SetVisible(true);
  elapsedMs_ = 0;
  program_.SpeechInterval = intervalMs;
  WriteWhole(program_.platform, settings::SpeechInterval, intervalMs);
  Disable(window_.MFileAbout);
  Disable(window_.MOptionsDefine);
  Disable(window_.MOptionsRestore);
  window_.MOptionsUnattanded.SetCaption(L"Stop &Unattended Speech");
  Disable(window_.MOptionsLearning);
  Disable(window_.txtBride);
  Disable(window_.txtGroom);
  Disable(window_.MFileScript);
  Disable(window_.cmdBrowse);
  window_.cmdSpeak.SetCaption(L"&Stop");
  window_.tmrSpeak.SetIntervalMs(kPeriodMs);
  EnterState(State::Running);
  window_.txtNext.SetBackColor(kYellow);
  // Readable although the box is disabled.
  window_.txtNext.SetForeColor(kBlack);
  window_.txtNext.SetEnabled(false);
}

void UnattendedSpeech::StopAutoSpeech() {
  if (state_ == State::Idle) return;
  EnterState(State::Idle);
  window_.lblDebug.SetVisible(false);
  window_.cmdSpeak.SetCaption(L"&Speak");
  window_.txtNext.SetBackColor(kWhite);
  window_.txtNext.SetForeColor(std::nullopt);
  window_.txtNext.SetEnabled(true);
  window_.MOptionsUnattanded.SetCaption(L"&Unattended Speech...");
  for (const auto& enable : std::exchange(enableAgain_, {})) enable();
}

void UnattendedSpeech::Hold() {
  if (state_ == State::Running) EnterState(State::Held);
}

void UnattendedSpeech::GoOn() {
  if (state_ == State::Held) EnterState(State::Running);
}

void UnattendedSpeech::EnterState(State state) {
  state_ = state;
  lastTick_ = program_.platform.time.TickCount();
  window_.tmrSpeak.SetEnabled(state == State::Running);
}

// A tick can be late. The time is therefore taken from the clock, and the ticks are brought back to whole
// periods, so that waits are whole periods, rounded up, and do not drift.
void UnattendedSpeech::tmrSpeak_Timer() {
  const std::uint32_t now = program_.platform.time.TickCount();
  elapsedMs_ += static_cast<int>(now - lastTick_);
  lastTick_ = now;
  const int lateMs = elapsedMs_ % kPeriodMs;
  window_.tmrSpeak.SetIntervalMs(std::max(kPeriodMs - lateMs, kShortestTickMs));
  const int waitMs = program_.RowDelay < kShortestWaitMs ? program_.SpeechInterval : program_.RowDelay;
  window_.lblDebug.SetCaption(std::to_wstring(std::max(0, waitMs - elapsedMs_)));
  if (elapsedMs_ < waitMs) return;
  // Before the sentence: the timer fires again during the pause after its leading Enter.
  elapsedMs_ = lateMs;
  window_.DoSpeechRow(L"");
}

template <class Thing>
void UnattendedSpeech::Disable(Thing& thing) {
  if (!thing.Enabled()) return;
  thing.SetEnabled(false);
  enableAgain_.push_back([&thing] { thing.SetEnabled(true); });
}

}  // namespace troth
