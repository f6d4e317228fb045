// Unattended speech: a timer presses Speak until the script ends, the game goes away or somebody stops it.
// Owned by frmTroth, whose handlers lead here; started by frmMacro. Whether it runs is told by tmrSpeak being
// enabled and by nothing else: a popup comment holds the run by holding the timer.
#pragma once

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

  // Ends the run; does nothing if there is none.
  void StopAutoSpeech();

  void tmrSpeak_Timer();

 private:
  template <class Thing>
  void PutOutOfReach(Thing& thing);

  Program& program_;
  MainWindow& window_;
  // Time counted towards the next sentence.
  int elapsedMs_ = 0;
  // Gives back what was put out of reach; what was disabled ahead of the run stays so behind it.
  std::vector<std::function<void()>> giveBack_;
};

}  // namespace troth
