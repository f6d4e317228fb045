// A button for each gesture of the game's 3D client. Opened from the menu of the main window, and at start-up
// if it was open when the program ended. The names come from a file beside the program and cannot be changed
// here.
#pragma once

#include <array>

#include "livetools/GestureFile.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"

namespace troth {

class MainWindow;
class Program;

class frmGestures final : public Form {
 public:
  frmGestures(Program& program, MainWindow& main);

  std::array<CommandButton, kGestures> MacroButton;

 private:
  void Form_Load() override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void Form_Unload() override;
  void LoadGestures();
  void MacroButton_Click(const CommandButton& button);

  Program& program_;
  MainWindow& main_;
};

}  // namespace troth
