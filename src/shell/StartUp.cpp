#include "shell/StartUp.h"

#include "core/CrashNote.h"
#include "core/Program.h"
#include "core/modMain.h"
#include "guide/frmAbout.h"
#include "guide/frmTip.h"
#include "livetools/frmIndex.h"
#include "platform/services/FileService.h"
#include "platform/services/ProcessService.h"
#include "script/MessageBoxes.h"
#include "shell/frmTroth.h"

namespace troth {

namespace {

void ConnectWindows(Program& program) {
  program.navigation.ShowMainWindow = [&program] {
    program.Make<frmTroth>().Show();
    if (auto* index = program.Opened<frmIndex>()) index->ComeToFront();
  };
  program.navigation.ShowAbout = [&program] { program.Make<frmAbout>().ShowModal(); };
  program.navigation.ShowTip = [&program] { program.Make<frmTip>().ShowModal(); };
  program.platform.forms.OnHelp = [&program](const Form& form) { modMain::ShowHelp(program, form); };
}

}  // namespace

void RunProgram(Program& program) {
  const Platform& platform = program.platform;
  if (platform.process.IsSecondInstance()) {
    ShowBox(platform, BoxIcon::Information, L"You cannot run two instances of Trothline at a same time");
    platform.process.EndNow(0);
  }
  // Before the first window, which offers help as well.
  program.HelpFile = platform.files.ProgramFolder() + L"\\Troth.hlp";
  ConnectWindows(program);
  MentionCrash(platform);
  if (frmTip::IsWantedAtStart(program)) {
    program.Make<frmTip>().Show();
  } else {
    program.navigation.ShowMainWindow();
    program.MainWindowShown = true;
  }
  platform.forms.RunUntilLastFormIsGone();
}

}  // namespace troth
