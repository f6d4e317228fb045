// The paragraphs of the script: shows in which one the current row lies, and jumps to another. Loaded with
// the main window and filled also while it is hidden; closing only hides it.
#pragma once

#include <string>
#include <vector>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/Timer.h"

namespace troth {

class MainWindow;
class Program;

class frmIndex final : public Form {
 public:
  frmIndex(Program& program, MainWindow& main);

  Label lblIndex{*this, {.name = L"lblIndex", .caption = L"&Paragraphs", .bounds = {120, 90, 2400, 255}}};
  ListBox lstIndex{*this, {.name = L"lstIndex", .bounds = {120, 345, 3360, 2925}}};
  CommandButton cmdGoto{
      *this, {.name = L"cmdGoto", .caption = L"&Goto", .bounds = {120, 3390, 1620, 375}, .enabled = false}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {1860, 3390, 1620, 375}}};
  Timer MoveTimer{*this, {.name = L"MoveTimer", .intervalMs = 500, .enabled = true}};

  // Puts the window where the last run left it and shows it if it was shown then.
  void Restore();
  // If it is shown, it stands in front of the main window from now on. An owner that is shown after its owned
  // window can cover it.
  void ComeToFront();
  // Shows it at its place and remembers that it is wanted.
  void Open();
  // Titles in script order; nothing is selected afterwards. `canGo`: the script has rows to go to.
  void SetParagraphs(const std::vector<std::wstring>& titles, bool canGo);
  // Goes to the selected paragraph.
  void SelectIndex();

 private:
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void MoveTimer_Timer();

  Program& program_;
  MainWindow& main_;
};

}  // namespace troth
