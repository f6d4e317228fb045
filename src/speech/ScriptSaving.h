// Saving the live script under a new name, and the question before learned delays are lost.
// Owned by frmTroth, which asks before it opens a window that replaces the script, and before it closes.
#pragma once

#include <string>

namespace troth {

class MainWindow;
class Program;

class ScriptSaving {
 public:
  ScriptSaving(Program& program, MainWindow& window) : program_(program), window_(window) {}

  // Whether what threatens the learned delays may go on. Asks only if there are unsaved ones; true as well
  // where the user wanted to save and then gave up.
  bool MayGoOn();

  // Why the session should not end now, or nothing.
  std::wstring WhyToWait() const;

  void MFileSaveas_Click();

 private:
  // A file name as the user typed it, with an extension added if need be; empty if the user gave up.
  std::wstring AskForName();
  bool MayReplace(const std::wstring& path, const std::wstring& name);

  Program& program_;
  MainWindow& window_;
};

}  // namespace troth
