// The heart of the main window: keeps one row of the script selected, shows the sentence that comes next,
// sends it to the game and moves on. Owned by frmTroth, whose handlers and public operations lead here.
// Never loads a script and knows no other window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace troth {

struct KeyPress;
class MainWindow;
class Program;
class WeddingRow;

// What others do on the road of a sentence. An empty joint does nothing and passes a text on unchanged.
struct SpeechJoints {
  // Replaces the marks of the user variables in all rows.
  std::function<void()> applyUserVars;
  // Replaces the dynamic variables in the one sentence that is about to be shown.
  std::function<std::wstring(const std::wstring&)> expandVariables;
  // Replaces characters that the game client cannot take.
  std::function<std::wstring(const std::wstring&)> unicodeTranslate;
  // Shows the text of a popup comment and returns when the user has closed it.
  std::function<void(const std::wstring&)> showPopup;
  // Carries out what a comment row asks for; gets its text without the leading mark, trimmed.
  std::function<void(const std::wstring&)> carryOutDirective;
  // A sentence has been handed over; `raisedAt` is the tick count at which the game was raised for it.
  std::function<void(std::uint32_t raisedAt)> learnDelay;
  // Ends unattended speech.
  std::function<void()> stopAutoSpeech;
  // The list of paragraphs: its titles; the one to highlight or -1; whether there is a row to go to.
  std::function<void(std::vector<std::wstring>)> showParagraphs;
  std::function<void(int)> selectParagraph;
  std::function<void(bool)> enableGoto;
};

class SpeechDriver {
 public:
  SpeechDriver(Program& program, MainWindow& window, SpeechJoints joints);

  void DoSpeechRow(const std::wstring& text);
  std::wstring SelectNewText();
  void ShowLanguage();
  void RefreshScript();

  void lstWedding_Click();
  // Moves in the script from the box of the next sentence.
  void HandleRowNavKey(KeyPress& press);
  // Gives each row the tick that it has after a load, if the user means it.
  void MOptionsRestore_Click();

 private:
  void ShowNothing();
  bool Speak(const std::wstring& sentence);
  void AdvanceToNextRow();
  void SelectRow(int index);
  void PassComment(const WeddingRow& row, bool carryOut);
  void ShowPopup(const std::wstring& text);
  bool IsAdvanceTarget(const WeddingRow& row, int index) const;
  std::wstring Head(const std::wstring& prefix) const;
  void StepOverEmptyRows(int step);
  void WaitPumping(int ms);

  Program& program_;
  MainWindow& window_;
  SpeechJoints joints_;
  bool endOfScript_ = false;
};

}  // namespace troth
