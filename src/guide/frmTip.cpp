#include "guide/frmTip.h"

#include "core/Program.h"
#include "core/Settings.h"
#include "core/Version.h"
#include "core/modMain.h"
#include "patch/modAutoPatch.h"
#include "platform/services/FileService.h"
#include "platform/services/ProcessService.h"
#include "platform/services/TextService.h"
#include "script/LineReader.h"
#include "script/ProgramTitle.h"

namespace troth {

namespace {
constexpr int kNext = 0;
constexpr int kRandom = -1;
constexpr wchar_t kTipFile[] = L"TIPOFDAY.TXT";
}  // namespace

frmTip::frmTip(Program& program)
    : Form(program.platform.forms, {.name = L"frmTip",
                                    .caption = L"Trothline - Tip of the Day",
                                    .clientSize = {7515, 3720},
                                    .border = BorderStyle::FixedDialog,
                                    .isCentred = true}),
      program_(program) {
  lblAuthor.SetCaption(std::wstring(L"by ") + kAuthor);
  cmdOK.OnClick = [this] { Unload(); };
  cmdNextTip.OnClick = [this] { ChooseTip(kNext); };
  cmdAbout.OnClick = [this] { program_.navigation.ShowAbout(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
  chkLoadTipsAtStartup.OnClick = [this] {
    WriteFlag(program_.platform, settings::ShowTipsAtStartup, chkLoadTipsAtStartup.Ticked());
  };
}

bool frmTip::IsWantedAtStart(const Program& program) {
  return ReadFlag(program.platform, settings::ShowTipsAtStartup);
}

void frmTip::Form_Load() {
  cmdAbout.SetVisible(!program_.MainWindowShown);
  lblAppName.SetCaption(std::wstring(kProgramTitle) + L" version " + RunningVersion().Text());
  chkLoadTipsAtStartup.SetTicked(IsWantedAtStart(program_));
  program_.Random.seed(program_.platform.process.RandomSeed());
  const std::wstring file = kTipFile;
  if (!LoadTips(program_.platform.files.ProgramFolder() + L'\\' + file))
    lblTipText.SetCaption(L"That the " + file + L" file was not found? \r\n\r\nCreate a text file named " +
                          file +
                          L" using NotePad with 1 tip per line. Then place it in the same directory as the "
                          L"application. ");
  modAutoPatch::ReadPatchSettings(program_);
}

// The main window loads and shows inside this call; MainWindowShown is set afterwards.
void frmTip::Form_Unload() {
  Hide();
  if (!program_.MainWindowShown) program_.navigation.ShowMainWindow();
  program_.MainWindowShown = true;
}

bool frmTip::LoadTips(const std::wstring& path) {
  const auto bytes = program_.platform.files.Read(path);
  if (!bytes) return false;
  const std::wstring text = program_.platform.text.Decode(*bytes);
  LineReader lines{std::wstring_view(text)};
  while (const auto line = lines.Next()) Tips.emplace_back(*line);
  ChooseTip(kRandom);
  return true;
}

void frmTip::ChooseTip(int step) {
  const int count = static_cast<int>(Tips.size());
  if (step >= 0)
    CurrentTip = CurrentTip >= count ? 1 : CurrentTip + 1;
  else if (count > 0)
    CurrentTip = std::uniform_int_distribution(1, count)(program_.Random);
  DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip() {
  if (!Tips.empty()) lblTipText.SetCaption(Tips[static_cast<std::size_t>(CurrentTip) - 1]);
}

}  // namespace troth
