#include "guide/frmIntro.h"

#include "core/Program.h"
#include "core/Settings.h"
#include "core/Version.h"
#include "core/modMain.h"
#include "guide/frmCredits.h"
#include "script/ProgramTitle.h"

namespace troth {

frmIntro::frmIntro(Program& program)
    : Form(program.platform.forms, {.name = L"frmIntro",
                                    .caption = kProgramTitle,
                                    .clientSize = {7305, 5430},
                                    .border = BorderStyle::FixedDialog,
                                    .isCentred = true}),
      program_(program) {
  cmdOK.OnClick = [this] { Unload(); };
  cmdCredits.OnClick = [this] { program_.Make<frmCredits>().ShowModal(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
}

void frmIntro::Form_Load() {
  const std::wstring version = RunningVersion().Text();
  SetCaption(std::wstring(kProgramTitle) + L" release notes");
  lblVersion.SetCaption(L"Version " + version);
  lblTitle.SetCaption(kProgramTitle);
  lblDescription.SetCaption(
      L"Welcome to Trothline " + version +
      L"\r\n"
      L"This is the first official release of Trothline to the public, after the program has been used for "
      L"two "
      L"years by the Counselors of Hollowmere. All Counselor specific parts have been removed. I hope you "
      L"will "
      L"enjoy using Trothline as much as I enjoyed writing it.\r\n\r\n"
      L"Please refer to the included readme.wri file or the release notes in the online help for full "
      L"information about this version.\r\n\r\n"
      L"For any suggestions, comments, or bugs, please feel free to contact me. You will find all contact "
      L"info "
      L"in the About dialog box.\r\n"
      L"Thank you.\r\n\r\n" +
      kAuthor);
}

void frmIntro::Form_Unload() {
  if (chkNeverAgain.Ticked())
    WriteText(program_.platform, settings::LastInstalledVersion, RunningVersion().Text());
}

}  // namespace troth
