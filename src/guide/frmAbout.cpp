#include "guide/frmAbout.h"

#include "core/Program.h"
#include "core/Version.h"
#include "core/modMain.h"
#include "guide/frmCredits.h"
#include "script/ProgramTitle.h"

namespace troth {

frmAbout::frmAbout(Program& program)
    : Form(program.platform.forms, {.name = L"frmAbout",
                                    .caption = kProgramTitle,
                                    .clientSize = {6540, 4890},
                                    .border = BorderStyle::FixedDialog,
                                    .isCentred = true}),
      program_(program) {
  cmdOK.OnClick = [this] { Unload(); };
  cmdCredits.OnClick = [this] { program_.Make<frmCredits>().ShowModal(); };
  cdmTip.OnClick = [this] { program_.navigation.ShowTip(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
  lblEmail.OnClick = [this] { modMain::SendMail(program_.platform, kAuthorMail); };
  lblWebsite.OnClick = [this] { modMain::OpenWebPage(program_.platform, kHomePage); };
}

void frmAbout::Form_Load() {
  lblEmail.SetCaption(kAuthorMail);
  SetCaption(std::wstring(L"About ") + kProgramTitle);
  lblVersion.SetCaption(L"Version " + RunningVersion().Text());
  lblTitle.SetCaption(kProgramTitle);
  lblDescription.SetCaption(
      std::wstring(L"Written by ") + kAuthor +
      L".\nPass it on freely among the players of Kestrel Moors, whole and unchanged, as one "
      L"passes a good cord of heather from wedding to wedding.\n"
      L"Please email any comments or suggestions to:");
  lblDisclaimer.SetCaption(VersionComments());
  lblWebsite.SetCaption(kHomePage);
  // At start-up the tips are already up, behind this window.
  if (!program_.MainWindowShown) cdmTip.SetVisible(false);
}

}  // namespace troth
