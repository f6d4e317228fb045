// The core of the main window: keeps one row of the script selected, shows the sentence that comes next,
// sends it to the game and moves on. Owned by frmTroth, whose handlers and public operations call it.
// Never loads a script and knows no other window.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/services/WindowService.h"

namespace troth {

struct KeyPress;
class Learning;
class MainWindow;
class Program;
class UnattendedSpeech;
class WeddingRow;

// What windows above this module do for the driver. All are mandatory; any handler can run inside the first
// two.
struct SpeechCallbacks {
  // Shows the text of a popup comment and lets unattended speech, which is held, go on once it has been read.
  std::function<void(const std::wstring&)> showPopup;
  // Carries out what a comment row asks for; gets its text without the leading mark, trimmed.
  std::function<void(const std::wstring&)> carryOutDirective;
  // Fills the list of paragraphs, with nothing selected. `hasRows`: there is a row to go to.
  std::function<void(const std::vector<std::wstring>& titles, bool hasRows)> showParagraphs;
  // Highlights a paragraph, from 0, or none (-1).
  std::function<void(int)> selectParagraph;
};

class SpeechDriver {
 public:
  SpeechDriver(Program& program, MainWindow& window, UnattendedSpeech& unattended, Learning& learning,
               SpeechCallbacks callbacks);

  void DoSpeechRow(const std::wstring& text);
  std::wstring SelectNewText();
  std::wstring ExpandVariables(const std::wstring& text) const;
  std::wstring UnicodeTranslate(const std::wstring& text) const;
  void ShowLanguage();
  void RefreshScript();

  void lstWedding_Click();
  // Moves in the script from the box of the next sentence.
  void HandleRowNavKey(KeyPress& press);
  // Gives each row the tick that it has after a load, if the user means it.
  void MOptionsRestore_Click();

 private:
  void ShowNothing();
  void WarnIfTruncated();
  std::optional<std::uint32_t> Speak(const std::wstring& sentence);
  bool GiveKeyboard(WindowHandle game);
  void WarnOfMissingRights();
  void AdvanceToNextRow();
  void SelectRow(int index);
  void PassComment(const WeddingRow& row, bool carryOut);
  bool IsAdvanceTarget(const WeddingRow& row, int index) const;
  std::wstring Head(const std::wstring& prefix) const;
  void StepOverEmptyRows(int step);

  Program& program_;
  MainWindow& window_;
  UnattendedSpeech& unattended_;
  Learning& learning_;
  SpeechCallbacks callbacks_;
  bool endOfScript_ = false;
  bool hasWarnedOfRights_ = false;  // once a run
};

}  // namespace troth
