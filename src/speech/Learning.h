// Learning mode: notes how long the officiant waits before each sentence, as the delay of its row. Owned by
// frmTroth; called by the speech driver after each sentence that the game got. Never writes a file.
#pragma once

#include <cstdint>

namespace troth {

class MainWindow;
class Program;

class Learning {
 public:
  Learning(Program& program, MainWindow& window) : program_(program), window_(window) {}

  void MOptionsLearning_Click();
  void tmrLearn_Timer();

  // The current row has been spoken; `raisedAt` is the tick count at which the game was raised for it.
  void LearnDelay(std::uint32_t raisedAt);

 private:
  Program& program_;
  MainWindow& window_;
  // Tick count at which the last sentence was finished, or learning switched on.
  std::uint32_t learnMark_ = 0;
};

}  // namespace troth
