// The main window: connects its controls to the classes that do the work and loads the live script. Opened by
// the start of the program only.
#pragma once

#include "core/MainWindow.h"
#include "shell/Hotkeys.h"
#include "shell/Layouts.h"
#include "speech/Learning.h"
#include "speech/ScriptSaving.h"
#include "speech/SpeechDriver.h"
#include "speech/UnattendedSpeech.h"

namespace troth {

class Program;

class frmTroth final : public MainWindow {
 public:
  explicit frmTroth(Program& program);

  void DoSpeechRow(const std::wstring& text) override { speech_.DoSpeechRow(text); }
  std::wstring SelectNewText() override { return speech_.SelectNewText(); }
  void ShowLanguage() override { speech_.ShowLanguage(); }
  void RefreshScript() override { speech_.RefreshScript(); }
  void OpenScript(const std::wstring& path) override;
  void StopAutoSpeech() override { unattended_.StopAutoSpeech(); }
  std::wstring ExpandVariables(const std::wstring& text) override { return speech_.ExpandVariables(text); }
  std::wstring UnicodeTranslate(const std::wstring& text) override { return speech_.UnicodeTranslate(text); }

 private:
  SpeechCallbacks Callbacks();
  void Form_Load() override;
  void Form_Activate() override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;
  void Form_Unload() override;
  void LoadOptions();
  void LoadScript(const std::wstring& path);
  void ShowScript();
  bool IsReadableScript(const std::wstring& path);
  void OpenDroppedFile(const std::wstring& path);
  void CarryOut(const std::wstring& directive);
  void ShowPopup(const std::wstring& text);
  void SpeakOrStop();
  void SetTranslation(bool on);
  void lstWedding_Tick(int index);
  void NameLeft(TextBox& box, const wchar_t* variable, bool& changed);
  void MFileScript_Click();
  void MFileWizard_Click();
  void MViewDynamic_Click();
  void MOptionsDefine_Click();
  void tmrPatcch_Timer();
  void MOptionsTop_Click();
  void MFileAbout_Click();
  void ShowHiddenGame();
  void MOptionsTranslate_Click();
  void MOptionsUnicode_Click();
  void MOptionsUnattanded_Click();

  Program& program_;
  UnattendedSpeech unattended_;
  Learning learning_;
  SpeechDriver speech_;
  ScriptSaving saving_;
  Hotkeys hotkeys_;
  Layouts layouts_;
  int patchTicks_ = 0;
  bool FirstActivate = true;
  bool groomChanged_ = false;
  bool brideChanged_ = false;
};

}  // namespace troth
