#include "livetools/frmPopup.h"

#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/SettingsTable.h"
#include "core/WindowPatterns.h"

namespace troth {

bool frmPopup::ShowText(Program& program, MainWindow& main, const std::wstring& text) {
  program.PopupText = text;
  program.PopupIsUnread = true;
  if (frmPopup* open = program.Opened<frmPopup>()) {
    open->lblMsg.SetCaption(text);
    return false;
  }
  while (program.PopupIsUnread) ShowDialog<frmPopup>(program, main);
  return true;
}

frmPopup::frmPopup(Program& program)
    : Form(program.platform.forms, {.name = L"frmPopup",
                                    .caption = L"Trothline Message",
                                    .clientSize = {6810, 1935},
                                    .border = BorderStyle::FixedDialog}),
      program_(program) {
  Command1.OnClick = [this] { Unload(); };
}

void frmPopup::Form_Load() {
  RestoreWithinScreen(program_.platform, *this, settings::PopupXPosition, settings::PopupYPosition);
  lblMsg.SetCaption(program_.PopupText);
  SetStacking(Stacking::TopMost);
}

void frmPopup::Form_Unload() {
  program_.PopupIsUnread = false;
  StorePlace(program_.platform, *this, settings::PopupXPosition, settings::PopupYPosition);
  SetStacking(Stacking::NotTopMost);
}

}  // namespace troth
