// The global hotkeys: keys that speak, take a screenshot and open the edit window while the game has the
// keyboard. Owned by frmTroth; the dialog of hotkeys registers them again. Opens no window itself.
#pragma once

#include "shell/HotkeyTable.h"

namespace troth {

class MainWindow;
class Program;

class Hotkeys {
 public:
  Hotkeys(Program& program, MainWindow& window, HotkeyActions actions);

  // Atoms, registration and hook, in this order, and back in the other. Taking down what is not in place does
  // nothing: a run can end before its hotkeys are there.
  void PutInPlace();
  void TakeDown();

  // Registers the enabled ones of the program's records. One that the desktop refuses says so in its record
  // and nowhere else.
  void RegisterHotkeys();
  // Gives back all of them, whether they are enabled or not.
  void UnregisterHotkeys();

  // Whether a hotkey that arrives at the main window is acted on.
  void SetHotkeyHook(bool enable) { isHooked_ = enable; }

 private:
  void HotkeyWindowProc(int modifiers, int keyCode);

  Program& program_;
  MainWindow& window_;
  HotkeyActions actions_;
  bool isInPlace_ = false;
  bool isHooked_ = false;
  int depth_ = 0;
};

}  // namespace troth
