// The global hotkeys: keys that speak, take a screenshot and open the edit window while the game has the
// keyboard. Owned by frmTroth; the dialog of hotkeys registers them anew. Opens no window itself.
#pragma once

#include <functional>

namespace troth {

class MainWindow;
class Program;

// What a hotkey does beyond the main window. An empty one does nothing.
struct HotkeyActions {
  std::function<void()> takeScreenshot;
  std::function<void()> showEditBox;
};

class Hotkeys {
 public:
  Hotkeys(Program& program, MainWindow& window, HotkeyActions actions);

  // Atoms, registration and hook, in this order, and back in the other. Taking down what is not in place does
  // nothing: a run can end before its hotkeys are there.
  void PutInPlace();
  void TakeDown();

  // The enabled ones of the program's records. One that the desktop refuses says so in its record and nowhere
  // else.
  void RegisterHotkeys();
  void UnregisterHotkeys();

  // Whether a hotkey that arrives at the main window is acted on.
  void SetHotkeyHook(bool enable) { isHooked_ = enable; }

 private:
  void HotkeyWindowProc(int modifiers, int keyCode);
  void SpeakOrStop();

  Program& program_;
  MainWindow& window_;
  HotkeyActions actions_;
  bool isInPlace_ = false;
  bool isHooked_ = false;
  int depth_ = 0;
};

}  // namespace troth
