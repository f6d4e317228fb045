#include "livetools/frmPopup.h"

#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/Settings.h"
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
  const Platform& platform = program_.platform;
  const Rect outer = OuterBounds();
  MoveTo(IntoScreen(
      {ReadWhole(platform, settings::PopupXPosition), ReadWhole(platform, settings::PopupYPosition)},
      {outer.width, outer.height}, platform.forms.Screen()));
  lblMsg.SetCaption(program_.PopupText);
  SetStacking(Stacking::TopMost);
}

void frmPopup::Form_Unload() {
  program_.PopupIsUnread = false;
  const Rect outer = OuterBounds();
  WriteWhole(program_.platform, settings::PopupXPosition, outer.left);
  WriteWhole(program_.platform, settings::PopupYPosition, outer.top);
  SetStacking(Stacking::NotTopMost);
}

}  // namespace troth
