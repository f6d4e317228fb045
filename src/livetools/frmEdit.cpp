#include "livetools/frmEdit.h"

#include "core/BesideMainWindow.h"
#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/SettingsTable.h"
#include "core/WindowPatterns.h"
#include "platform/forms/KeyCodes.h"
#include "script/Text.h"
#include "speech/GameOutput.h"

namespace troth {

namespace {

// The program is blocked meanwhile, so that nothing can come between the Enter and the text.
constexpr EnterPause kEnterPause{300};

// Which way in the history a key leads; 0 for other keys.
int StepOf(int keyCode) {
  if (keyCode == kDownKey || keyCode == kPageDownKey) return 1;
  return keyCode == kUpKey || keyCode == kPageUpKey ? -1 : 0;
}

}  // namespace

frmEdit::frmEdit(Program& program, MainWindow& main)
    : Form(program.platform.forms,
           {.name = L"frmEdit",
            .caption = L"Trothline Edit Box (use up/down to browse, Esc to clear and quit)",
            .clientSize = {6135, 285},
            .border = BorderStyle::FixedTool,
            .helpContext = 102}),
      program_(program),
      main_(main) {
  txtEdit.OnKeyDown = [this](KeyPress& press) { txtEdit_KeyDown(press); };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  tmrMove.OnTimer = [this] { FollowGame(); };
}

void frmEdit::Form_Load() {
  program_.EditBoxHistory.StopBrowsing();
  if (FollowGame()) return;
  GoBeside(program_.platform, *this, main_);
  GoToStoredPlace(program_.platform, *this, settings::EditBoxXPosition, settings::EditBoxYPosition);
}

void frmEdit::Form_Unload() {
  StorePlace(program_.platform, *this, settings::EditBoxXPosition, settings::EditBoxYPosition);
}

// Moves only when the game has moved: the officiant may put the window elsewhere meanwhile. False without a
// game to follow; a minimised one lies far off the screen and will come back.
bool frmEdit::FollowGame() {
  if (!program_.EditBoxSticky) return false;
  WindowService& windows = program_.platform.windows;
  const WindowHandle window = FindGameWindow(windows);
  const auto game = windows.OuterRect(window);
  if (!game || windows.IsMinimised(window)) return false;
  const PixelPoint corner{game->left, game->bottom};
  if (corner != gameCorner_) GoBelow(*game);
  gameCorner_ = corner;
  return true;
}

void frmEdit::GoBelow(const PixelRect& game) {
  const FormBackend& forms = program_.platform.forms;
  const Rect outer = OuterBounds();
  MoveTo(RightBelow(forms.Monitors(), forms.FromPixels(game), {outer.width, outer.height}));
}

void frmEdit::txtEdit_KeyDown(KeyPress& press) {
  const int step = StepOf(press.keyCode);
  if (step == 0 || press.shift != 0 || program_.EditBoxHistory.IsEmpty()) return;
  press.handled = true;
  const std::wstring* sentence = program_.EditBoxHistory.Browse(step);
  if (!sentence) return;
  txtEdit.SetText(*sentence);
  txtEdit.PutCaretAtEnd();
}

void frmEdit::cmdOK_Click() {
  const std::wstring text = txtEdit.Text();
  if (TrimBlanks(text).empty()) return;
  program_.EditBoxHistory.Remember(text);
  txtEdit.SetText(L"");
  Send(text);
}

void frmEdit::Send(const std::wstring& text) {
  const Platform& platform = program_.platform;
  SendLine(platform, FindGameWindow(platform.windows), text, main_.MOptionsAuto.Checked(), kEnterPause);
}

void frmEdit::cmdCancel_Click() {
  if (TrimBlanks(txtEdit.Text()).empty()) {
    Unload();
    return;
  }
  txtEdit.SetText(L"");
  txtEdit.SetFocus();
}

void ShowEditBox(Program& program, MainWindow& owner) { ShowToolWindow<frmEdit>(program, &owner, owner); }

}  // namespace troth
