#include "shell/frmTroth.h"

#include "authoring/frmBrowse.h"
#include "authoring/frmWizard.h"
#include "book/frmKMBook.h"
#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/Settings.h"
#include "core/Version.h"
#include "core/WindowPatterns.h"
#include "core/modMain.h"
#include "guide/frmAbout.h"
#include "guide/frmCredits.h"
#include "guide/frmIntro.h"
#include "guide/frmShip.h"
#include "livetools/frmButtonBar.h"
#include "livetools/frmDynamic.h"
#include "livetools/frmEdit.h"
#include "livetools/frmGestures.h"
#include "livetools/frmIndex.h"
#include "livetools/frmPopup.h"
#include "livetools/frmVars.h"
#include "patch/modAutoPatch.h"
#include "platform/services/FileService.h"
#include "screenshots/TakeScreenshot.h"
#include "script/Directives.h"
#include "script/Expansion.h"
#include "script/MessageBoxes.h"
#include "script/OfferConversion.h"
#include "script/ProgramTitle.h"
#include "script/ScriptFileName.h"
#include "script/Text.h"
#include "script/UserVarsFile.h"
#include "script/modScript.h"
#include "shell/HotkeySettings.h"
#include "shell/frmHotkey.h"
#include "speech/frmMacro.h"

namespace troth {

namespace {

// The patch program is swapped at this tick of its timer, once a run.
constexpr int kSwapTick = 15;

// A menu item that does nothing but flip its check mark; its readers look at each use.
void FlipsOnClick(MenuItem& item) {
  item.OnClick = [&item] { item.SetChecked(!item.Checked()); };
}

bool OpensHiddenGame(std::wstring_view sentence) {
  const std::wstring phrase = ToUpper(sentence);
  return phrase == L"MOSSY CLIFF!" || phrase == L"! MOSSY CLIFF!";
}

}  // namespace

frmTroth::frmTroth(Program& program)
    : MainWindow(
          program.platform.forms,
          {.name = L"frmTroth", .caption = kProgramTitle, .clientSize = {8160, 3225}, .helpContext = 3}),
      program_(program),
      unattended_(program, *this),
      learning_(program, *this),
      speech_(program, *this, unattended_, learning_, Callbacks()),
      saving_(program, *this),
      hotkeys_(program, *this,
               {.speakOrStop = [this] { SpeakOrStop(); },
                .takeScreenshot = [this] { modScript::TakeScreenshot(program_, *this); },
                .showEditBox = [this] { ShowEditBox(program_, *this); }}),
      layouts_(program, *this) {
  cmdBrowse.OnClick = [this] { MFileScript_Click(); };
  OnSessionEnding = [this] { return saving_.WhyToWait(); };
  OnFileDropped = [this](const std::wstring& path) { OpenDroppedFile(path); };
  cmdSpeak.OnClick = [this] { SpeakOrStop(); };
  lstWedding.OnClick = [this] { speech_.lstWedding_Click(); };
  lstWedding.OnTick = [this](int index) { lstWedding_Tick(index); };
  chkYell.OnClick = [this] { speech_.lstWedding_Click(); };
  txtPrefix.OnChange = [this] { speech_.lstWedding_Click(); };
  txtGroom.OnChange = [this] { groomChanged_ = true; };
  txtGroom.OnLostFocus = [this] { NameLeft(txtGroom, L"groom", groomChanged_); };
  txtBride.OnChange = [this] { brideChanged_ = true; };
  txtBride.OnLostFocus = [this] { NameLeft(txtBride, L"bride", brideChanged_); };
  txtNext.OnKeyDown = [this](KeyPress& press) { speech_.HandleRowNavKey(press); };
  tmrSpeak.OnTimer = [this] { unattended_.tmrSpeak_Timer(); };
  tmrLearn.OnTimer = [this] { learning_.tmrLearn_Timer(); };
  tmrPatcch.OnTimer = [this] { tmrPatcch_Timer(); };

  MFileSaveas.OnClick = [this] { saving_.MFileSaveas_Click(); };
  MFileScript.OnClick = [this] { MFileScript_Click(); };
  MFileWizard.OnClick = [this] { MFileWizard_Click(); };
  MFileQuit.OnClick = [this] { Unload(); };
  MViewIndex.OnClick = [this] { program_.Open<frmIndex>(*this).Open(); };
  MViewButtonBar.OnClick = [this] { ShowToolWindow<frmButtonBar>(program_, this, *this); };
  MViewGestureBar.OnClick = [this] { ShowToolWindow<frmGestures>(program_, this, *this); };
  MViewDynamic.OnClick = [this] { MViewDynamic_Click(); };
  MOptionsDefine.OnClick = [this] { MOptionsDefine_Click(); };
  MOptionsTop.OnClick = [this] { MOptionsTop_Click(); };
  FlipsOnClick(MOptionsPopup);
  FlipsOnClick(MOptionsAuto);
  MOptionsLearning.OnClick = [this] { learning_.MOptionsLearning_Click(); };
  FlipsOnClick(MOptionsEmote);
  MOptionsAddParty.OnClick = [this] { DoSpeechRow(L"/add"); };
  FlipsOnClick(MOptionsCounselor);
  MOptionsTranslate.OnClick = [this] { MOptionsTranslate_Click(); };
  MOptionsUnicode.OnClick = [this] { MOptionsUnicode_Click(); };
  MOptionsRestore.OnClick = [this] { speech_.MOptionsRestore_Click(); };
  MOptionsUnattanded.OnClick = [this] { MOptionsUnattanded_Click(); };
  MViewKMBook.OnClick = [this] { ShowToolWindow<frmKMBook>(program_, this, *this); };
  MScreenScresnshot.OnClick = [this] { modScript::TakeScreenshot(program_, *this); };
  MViewEdit.OnClick = [this] { ShowEditBox(program_, *this); };
  MOptionsHotkey.OnClick = [this] { ShowDialog<frmHotkey>(program_, *this, hotkeys_); };
  MHelpContents.OnClick = [this] { modMain::ShowHelpContents(program_); };
  MFileAbout.OnClick = [this] { MFileAbout_Click(); };
  MHelpCredits.OnClick = [this] { ShowDialog<frmCredits>(program_, *this); };
}

// The index window is loaded and unloaded with this one, but calls can come before and after.
SpeechCallbacks frmTroth::Callbacks() {
  return {
      .showPopup = [this](const std::wstring& text) { ShowPopup(text); },
      .carryOutDirective = [this](const std::wstring& directive) { CarryOut(directive); },
      .showParagraphs =
          [this](const std::vector<std::wstring>& titles, bool hasRows) {
            if (auto* index = program_.Opened<frmIndex>()) index->SetParagraphs(titles, hasRows);
          },
      .selectParagraph =
          [this](int paragraph) {
            if (auto* index = program_.Opened<frmIndex>()) index->lstIndex.SetIndex(paragraph);
          },
  };
}

// A text that another popup has taken is read when that one's call returns.
void frmTroth::ShowPopup(const std::wstring& text) {
  if (frmPopup::ShowText(program_, *this, text)) unattended_.GoOn();
}

void frmTroth::CarryOut(const std::wstring& directive) {
  CarryOutDirective(directive, program_.DynamicVars,
                    {.setTranslation = [this](bool on) { SetTranslation(on); },
                     .takeScreenshot = [this] { modScript::TakeScreenshot(program_, *this); },
                     .showPopup = [this](const std::wstring& text) { ShowPopup(text); }});
}

void frmTroth::Form_Load() {
  const Platform& platform = program_.platform;
  program_.WindowReady = false;
  RecordVersion(platform);
  if (ReadText(platform, settings::LastInstalledVersion) != RunningVersion().Text())
    program_.Make<frmIntro>().ShowModal();
  modMain::LoadUnicodeTable(program_);
  LoadOptions();
  RestoreWithinScreen(platform, *this, settings::XPosition, settings::YPosition);
  program_.Open<frmIndex>(*this).Restore();
  const bool isGiven = !program_.StartScript.empty() && IsReadableScript(program_.StartScript);
  if (isGiven) OfferConversion(platform, program_.StartScript);
  LoadScript(isGiven ? program_.StartScript : ReadText(platform, settings::LastScript));
  modScript::LoadUserVars(program_.UserVars, txtGroom.Text(), txtBride.Text(), program_.platform);
  ShowScript();
  program_.EditBoxSticky = ReadFlag(platform, settings::EditBoxSticky);
  ReadHotkeyOptions(platform, program_.Hotkeys, program_.Screenshots);
  hotkeys_.PutInPlace();
}

// The bars that were open when the program ended come back. They have no owner, other than those opened from
// the menu.
void frmTroth::Form_Activate() {
  if (!FirstActivate) return;
  FirstActivate = false;
  if (ReadFlag(program_.platform, settings::ButtonBarVisible))
    ShowToolWindow<frmButtonBar>(program_, nullptr, *this);
  if (ReadFlag(program_.platform, settings::GestureBarVisible))
    ShowToolWindow<frmGestures>(program_, nullptr, *this);
}

void frmTroth::LoadOptions() {
  const Platform& platform = program_.platform;
  program_.SpeechInterval = ReadWhole(platform, settings::SpeechInterval);
  MOptionsTop.SetChecked(ReadFlag(platform, settings::OnTop));
  program_.TopMostState = MOptionsTop.Checked() ? Stacking::TopMost : Stacking::NotTopMost;
  SetStacking(program_.TopMostState);
  MOptionsVertical.SetChecked(ReadFlag(platform, settings::VerticalLayout));
  layouts_.ArrangeLayout();
  MOptionsPopup.SetChecked(ReadFlag(platform, settings::PopupMessages));
  MOptionsAuto.SetChecked(ReadFlag(platform, settings::Autoterminate));
  MOptionsEmote.SetChecked(ReadFlag(platform, settings::SkipEmote));
  MOptionsCounselor.SetChecked(ReadFlag(platform, settings::SkipPartyCommands));
}

void frmTroth::LoadScript(const std::wstring& path) {
  program_.ScriptNow.sFileName(path);
  modScript::LoadScriptFile(program_.ScriptNow, program_.ScriptIndexEntries, program_.platform,
                            [this] { hotkeys_.TakeDown(); });
}

void frmTroth::ShowScript() {
  modScript::ApplyUserVars(program_.ScriptNow, program_.UserVars);
  ShowLanguage();
}

void frmTroth::OpenScript(const std::wstring& path) {
  OfferConversion(program_.platform, path);
  StopAutoSpeech();
  LoadScript(path);
  ShowScript();
  SetTranslation(false);
}

// The loader would end the program on a file that it cannot read. One that the user brings from elsewhere is
// refused instead.
bool frmTroth::IsReadableScript(const std::wstring& path) {
  const Platform& platform = program_.platform;
  if (LanguageOf(path) && platform.files.Read(path)) return true;
  ShowBox(
      platform, BoxIcon::Warning,
      path + L" is not a script that can be read. The name of a script ends in " + kScriptExtension + L'.');
  return false;
}

// Where the script browser would be refused, a file is not taken either.
void frmTroth::OpenDroppedFile(const std::wstring& path) {
  if (MFileScript.Enabled() && IsReadableScript(path) && saving_.MayGoOn()) OpenScript(path);
}

// Learned delays are in the rows only until the script is saved.
void frmTroth::Form_QueryUnload(bool& cancel, CloseReason) { cancel = !saving_.MayGoOn(); }

void frmTroth::Form_Unload() {
  const Platform& platform = program_.platform;
  if (auto* bar = program_.Opened<frmButtonBar>()) bar->Unload();
  if (auto* bar = program_.Opened<frmGestures>()) bar->Unload();
  StorePlace(platform, *this, settings::XPosition, settings::YPosition);
  WriteFlag(platform, settings::OnTop, MOptionsTop.Checked());
  WriteFlag(platform, settings::VerticalLayout, MOptionsVertical.Checked());
  WriteFlag(platform, settings::PopupMessages, MOptionsPopup.Checked());
  WriteFlag(platform, settings::Autoterminate, MOptionsAuto.Checked());
  WriteFlag(platform, settings::SkipEmote, MOptionsEmote.Checked());
  WriteFlag(platform, settings::SkipPartyCommands, MOptionsCounselor.Checked());
  WriteText(platform, settings::LastScript, program_.ScriptNow.sFileName());
  WriteWhole(platform, settings::IndexXPosition, program_.IndexX);
  WriteWhole(platform, settings::IndexYPosition, program_.IndexY);
  WriteFlag(platform, settings::IndexVisible, program_.IndexVisible);
  if (auto* index = program_.Opened<frmIndex>()) index->Unload();
  hotkeys_.TakeDown();
}

void frmTroth::NameLeft(TextBox& box, const wchar_t* variable, bool& changed) {
  if (!changed) return;
  if (CustVar* name = program_.UserVars.Item(std::wstring_view(variable)))
    name->VarValue(std::wstring(TrimBlanks(box.Text())));
  RefreshScript();
  changed = false;
}

void frmTroth::MFileScript_Click() {
  if (saving_.MayGoOn()) ShowDialog<frmBrowse>(program_, *this, *this);
}

void frmTroth::MFileWizard_Click() {
  if (saving_.MayGoOn()) ShowDialog<frmWizard>(program_, *this);
}

void frmTroth::MViewDynamic_Click() { ShowDialog<frmDynamic>(program_, *this); }

void frmTroth::MOptionsDefine_Click() {
  ShowDialog<frmVars>(program_, *this);
  RefreshScript();
  speech_.lstWedding_Click();
}

// What was typed over the next sentence stays when another row is ticked.
void frmTroth::lstWedding_Tick(int index) {
  if (index == lstWedding.Index()) speech_.lstWedding_Click();
}

void frmTroth::SpeakOrStop() {
  if (unattended_.IsRunning())
    StopAutoSpeech();
  else
    DoSpeechRow(L"");
}

void frmTroth::tmrPatcch_Timer() {
  if (++patchTicks_ != kSwapTick) return;
  tmrPatcch.SetEnabled(false);
  modAutoPatch::SwapInPatchProgram(program_.platform.files);
}

// The tool windows follow at their next opening.
void frmTroth::MOptionsTop_Click() {
  MOptionsTop.SetChecked(!MOptionsTop.Checked());
  program_.TopMostState = MOptionsTop.Checked() ? Stacking::TopMost : Stacking::NotTopMost;
  SetStacking(program_.TopMostState);
}

void frmTroth::MOptionsTranslate_Click() { SetTranslation(!MOptionsTranslate.Checked()); }

void frmTroth::SetTranslation(bool on) {
  MOptionsTranslate.SetChecked(on);
  lblTranslation.SetVisible(on);
}

void frmTroth::MOptionsUnicode_Click() {
  MOptionsUnicode.SetChecked(!MOptionsUnicode.Checked());
  lblUnicode.SetVisible(!MOptionsUnicode.Checked());
}

void frmTroth::MOptionsUnattanded_Click() {
  if (!modScript::AskForScript(program_.ScriptNow, program_.platform)) return;
  if (unattended_.IsRunning()) {
    StopAutoSpeech();
    return;
  }
  ShowDialog<frmMacro>(program_, *this, unattended_);
  speech_.lstWedding_Click();
}

void frmTroth::MFileAbout_Click() {
  if (OpensHiddenGame(txtNext.Text()))
    ShowHiddenGame();
  else
    ShowDialog<frmAbout>(program_, *this);
}

// In front of all programs, whatever the main window does.
void frmTroth::ShowHiddenGame() {
  auto& game = program_.Make<frmShip>();
  game.Show(this);
  game.SetStacking(Stacking::TopMost);
}

}  // namespace troth
