#include "shell/frmTroth.h"

#include "script/ProgramTitle.h"
#include "script/modScript.h"
#include "shell/Program.h"
#include "shell/Settings.h"

namespace troth {

namespace {

// A menu item that does nothing but flip its check mark; its readers look at each use.
void FlipsOnClick(MenuItem& item) {
  item.OnClick = [&item] { item.SetChecked(!item.Checked()); };
}

}  // namespace

frmTroth::frmTroth(Program& program)
    : MainWindow(program.platform.forms,
                 {.name = L"frmTroth", .caption = kProgramTitle, .clientSize = {8160, 3225}}),
      program_(program),
      speech_(program, *this, {}) {
  cmdSpeak.OnClick = [this] { cmdSpeak_Click(); };
  lstWedding.OnClick = [this] { speech_.lstWedding_Click(); };
  lstWedding.OnTick = [this](int index) { lstWedding_Tick(index); };
  chkYell.OnClick = [this] { speech_.lstWedding_Click(); };
  txtPrefix.OnChange = [this] { speech_.lstWedding_Click(); };
  txtNext.OnKeyDown = [this](KeyPress& press) { speech_.HandleRowNavKey(press); };

  MFileQuit.OnClick = [this] { Unload(); };
  FlipsOnClick(MOptionsPopup);
  FlipsOnClick(MOptionsAuto);
  FlipsOnClick(MOptionsLearning);
  FlipsOnClick(MOptionsEmote);
  FlipsOnClick(MOptionsCounselor);
  MOptionsTranslate.OnClick = [this] { MOptionsTranslate_Click(); };
  MOptionsUnicode.OnClick = [this] { MOptionsUnicode_Click(); };
}

void frmTroth::Form_Load() {
  const Platform& platform = program_.platform;
  program_.ScriptNow.sFileName(
      GetSetting(platform, MainApplication(platform), L"Options", L"Last Script", L""));
  modScript::LoadScriptFile(program_.ScriptNow, program_.ScriptIndexEntries, program_.platform);
  ShowLanguage();
}

// What was typed over the next sentence stays when another row is ticked.
void frmTroth::lstWedding_Tick(int index) {
  if (index == lstWedding.Index()) speech_.lstWedding_Click();
}

void frmTroth::cmdSpeak_Click() {
  if (tmrSpeak.Enabled())
    StopAutoSpeech();
  else
    DoSpeechRow(L"");
}

void frmTroth::MOptionsTranslate_Click() {
  MOptionsTranslate.SetChecked(!MOptionsTranslate.Checked());
  lblTranslation.SetVisible(MOptionsTranslate.Checked());
}

void frmTroth::MOptionsUnicode_Click() {
  MOptionsUnicode.SetChecked(!MOptionsUnicode.Checked());
  lblUnicode.SetVisible(!MOptionsUnicode.Checked());
}

}  // namespace troth
