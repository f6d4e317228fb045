#include "livetools/frmGestures.h"

#include "core/BesideMainWindow.h"
#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ScreenPlace.h"
#include "core/Settings.h"
#include "livetools/ButtonArray.h"
#include "platform/services/FileService.h"
#include "speech/GameOutput.h"

namespace troth {

namespace {

constexpr EnterPause kEnterPause{100};
constexpr wchar_t kGestureMark = L'`';

// Neighbours share an edge: a button is one pixel larger than the grid on which it stands.
constexpr Size kGrid{1080, 360};
constexpr Size kButton{1095, 375};
constexpr int kColumns = 10;

// The third row has two buttons fewer and stands in the middle.
Rect PlaceOf(int index) {
  const int row = index / kColumns;
  const int column = index % kColumns + (row == 2 ? 1 : 0);
  return {column * kGrid.width, row * kGrid.height, kButton.width, kButton.height};
}

}  // namespace

frmGestures::frmGestures(Program& program, MainWindow& main)
    : Form(program.platform.forms,
           {.name = L"frmGestures",
            .caption = L"Trothline Gesture Bar (English KM3D only)",
            .clientSize = {(kColumns - 1) * kGrid.width + kButton.width, 2 * kGrid.height + kButton.height},
            .border = BorderStyle::FixedTool,
            .helpContext = 103}),
      MacroButton(MakeMacroButtons<kGestures>(*this, PlaceOf)),
      program_(program),
      main_(main) {
  for (CommandButton& button : MacroButton) button.OnClick = [this, &button] { MacroButton_Click(button); };
}

void frmGestures::Form_Load() {
  LoadGestures();
  GoBeside(program_.platform, *this, main_);
  GoToStoredPlace(program_.platform, *this, settings::GestureBarXPosition, settings::GestureBarYPosition);
  WriteText(program_.platform, settings::GestureBarVisible, L"-1");
}

// A bar that the program itself closes comes back at the next start.
void frmGestures::Form_QueryUnload(bool&, CloseReason reason) {
  if (reason == CloseReason::User) WriteFlag(program_.platform, settings::GestureBarVisible, false);
}

void frmGestures::Form_Unload() {
  StorePlace(program_.platform, *this, settings::GestureBarXPosition, settings::GestureBarYPosition);
}

// A button for which the file has no line is dead; an empty line is a gesture without a name.
void frmGestures::LoadGestures() {
  const Platform& platform = program_.platform;
  const std::wstring path = platform.files.ProgramFolder() + L"\\Gestures.ini";
  const auto bytes = platform.files.Read(path);
  const std::vector<std::wstring> names = ReadGestures(bytes.value_or(""), platform.text);
  const std::wstring why = bytes ? L"There is no line for this button in " + path
                                 : path + L" cannot be read, and so there are no gestures";
  for (std::size_t index = 0; index < kGestures; ++index) {
    const bool hasName = index < names.size();
    MacroButton[index].SetCaption(hasName ? names[index] : L"");
    MacroButton[index].SetToolTip(hasName ? names[index] : why);
    MacroButton[index].SetEnabled(hasName);
  }
}

// Only the client of the second class has gestures.
void frmGestures::MacroButton_Click(const CommandButton& button) {
  const Platform& platform = program_.platform;
  SendLine(platform, platform.windows.Find(kSecondGameClass), kGestureMark + button.Caption(),
           main_.MOptionsAuto.Checked(), kEnterPause);
}

}  // namespace troth
