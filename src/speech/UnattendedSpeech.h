// Unattended speech: a timer presses Speak until the script ends, the game goes away or somebody stops it.
// Owned by frmTroth, whose handlers call it; started by frmMacro, held by the speech driver while a popup
// comment is read.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace troth {

class MainWindow;
class Program;

class UnattendedSpeech {
 public:
  UnattendedSpeech(Program& program, MainWindow& window) : program_(program), window_(window) {}

  // Starts a run with this general interval in ms, which is kept for the next time. Ends learning for good.
  void Start(int intervalMs);

  // Ends the run, also one that is held; does nothing if there is none.
  void StopAutoSpeech();

  // Stops counting while the officiant reads, and goes on from there. Each does nothing in any other state.
  void Hold();
  void GoOn();

  // Runs, and is not held. The timer is enabled exactly then.
  bool IsRunning() const { return state_ == State::Running; }

  void tmrSpeak_Timer();

 private:
  enum class State { Idle, Running, Held };

  void EnterState(State state);
  template <class Thing>
  void Disable(Thing& thing);

  Program& program_;
  MainWindow& window_;
  State state_ = State::Idle;
  // Time counted towards the next sentence, up to the tick count of the last tick.
  int elapsedMs_ = 0;
  std::uint32_t lastTick_ = 0;
  // Enable again what the run has disabled. Controls that were disabled before the run stay disabled after
  // it.
  std::vector<std::function<void()>> enableAgain_;
};

}  // namespace troth
