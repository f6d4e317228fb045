#include "speech/Learning.h"

#include <algorithm>
#include <string>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "platform/Platform.h"
#include "platform/services/TimeService.h"
#include "script/ScriptLine.h"

namespace troth {

namespace {

// Delays are learned in whole periods of the timer of unattended speech.
constexpr std::int32_t kGrainMs = 200;

// Below 0 where learning was switched on in the middle of a sentence, in the pause after its leading Enter.
std::int32_t DelayOf(std::uint32_t passedMs) {
  const std::int32_t delay = std::clamp(static_cast<std::int32_t>(passedMs), 0, kMaxDelayMs);
  return (delay + kGrainMs / 2) / kGrainMs * kGrainMs;
}

}  // namespace

void Learning::MOptionsLearning_Click() {
  const bool on = !window_.MOptionsLearning.Checked();
  window_.MOptionsLearning.SetChecked(on);
  if (on) learnMark_ = program_.platform.time.TickCount();
  window_.tmrLearn.SetEnabled(on);
  window_.lblDebug.SetVisible(on);
}

void Learning::tmrLearn_Timer() {
  window_.lblDebug.SetCaption(std::to_wstring(program_.platform.time.TickCount() - learnMark_));
}

void Learning::LearnDelay(std::uint32_t raisedAt) {
  WeddingScript& script = program_.ScriptNow;
  const std::uint32_t passedMs = raisedAt - learnMark_;
  learnMark_ = program_.platform.time.TickCount();
  if (!script.Rows() || script.CurrentRow() < 1) return;
  script.Rows()->Item(script.CurrentRow()).Delay(DelayOf(passedMs));
  script.Dirty(true);
}

}  // namespace troth
