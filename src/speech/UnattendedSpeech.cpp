#include "speech/UnattendedSpeech.h"

#include <algorithm>
#include <string>
#include <utility>

#include "script/ScriptLine.h"
#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/Settings.h"

namespace troth {

namespace {

constexpr int kPeriodMs = 200;
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
  PutOutOfReach(window_.MFileAbout);
  PutOutOfReach(window_.MOptionsDefine);
  PutOutOfReach(window_.MOptionsRestore);
  window_.MOptionsUnattanded.SetCaption(L"Stop &Unattended Speech");
  PutOutOfReach(window_.MOptionsLearning);
  PutOutOfReach(window_.txtBride);
  PutOutOfReach(window_.txtGroom);
  PutOutOfReach(window_.MFileScript);
  PutOutOfReach(window_.cmdBrowse);
  window_.cmdSpeak.SetCaption(L"&Stop");
  window_.tmrSpeak.SetIntervalMs(kPeriodMs);
  window_.tmrSpeak.SetEnabled(true);
  window_.txtNext.SetBackColor(kYellow);
  window_.txtNext.SetEnabled(false);
}

void UnattendedSpeech::StopAutoSpeech() {
  if (!window_.tmrSpeak.Enabled()) return;
  window_.tmrSpeak.SetEnabled(false);
  window_.lblDebug.SetVisible(false);
  window_.cmdSpeak.SetCaption(L"&Speak");
  window_.txtNext.SetBackColor(kWhite);
  window_.txtNext.SetEnabled(true);
  window_.MOptionsUnattanded.SetCaption(L"&Unattended Speech...");
  for (const auto& giveBack : std::exchange(giveBack_, {})) giveBack();
}

// Nominal periods are counted, not the clock, so a wait is a whole number of them.
void UnattendedSpeech::tmrSpeak_Timer() {
  elapsedMs_ += window_.tmrSpeak.IntervalMs();
  const int waitMs = program_.RowDelay < kShortestWaitMs ? program_.SpeechInterval : program_.RowDelay;
  window_.lblDebug.SetCaption(std::to_wstring(std::max(0, waitMs - elapsedMs_)));
  if (elapsedMs_ < waitMs) return;
  // Ahead of the sentence: the timer comes in again while that one waits behind its leading Enter.
  elapsedMs_ = 0;
  window_.DoSpeechRow(L"");
}

template <class Thing>
void UnattendedSpeech::PutOutOfReach(Thing& thing) {
  if (!thing.Enabled()) return;
  thing.SetEnabled(false);
  giveBack_.push_back([&thing] { thing.SetEnabled(true); });
}

}  // namespace troth
