#include "livetools/frmButtonBar.h"

#include "core/BesideMainWindow.h"
#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "core/ScreenPlace.h"
#include "core/Settings.h"
#include "livetools/ButtonArray.h"
#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"
#include "speech/GameOutput.h"

namespace troth {

namespace {

constexpr int kButtonWidth = 975;
constexpr int kButtonHeight = 375;
constexpr EnterPause kEnterPause{100};
constexpr int kRow = 0;

std::vector<FileFilter> ButtonFileFilters() {
  return {{L"Button Definition Files (*.btn)", L"*.btn"}, {L"All Files (*.*)", L"*.*"}};
}

}  // namespace

frmButtonBar::frmButtonBar(Program& program, MainWindow& main)
    : Form(program.platform.forms, {.name = L"frmButtonBar",
                                    .caption = L"Trothline Button Bar (right click any button to configure)",
                                    .clientSize = {kButtonWidth * (kSpeechButtons + 1), kButtonHeight},
                                    .border = BorderStyle::FixedTool,
                                    .helpContext = 101}),
      MacroButton(MakeMacroButtons<kSpeechButtons + 1>(
          *this,
          [](int index) {
            return Rect{index * kButtonWidth, 0, kButtonWidth, kButtonHeight};
          },
          kLayoutButton)),
      program_(program),
      main_(main) {
  for (std::size_t index = 0; index < MacroButton.size(); ++index) {
    MacroButton[index].OnClick = [this, index] { MacroButton_Click(index); };
    MacroButton[index].OnMouseDown = [this, index](const MouseEvent& event) {
      MacroButton_MouseDown(index, event);
    };
  }
  MConfigureConfigure.OnClick = [this] { MConfigureConfigure_Click(); };
  MConfigureLoadSingle.OnClick = [this] { LoadButtons(static_cast<int>(CurrentButton)); };
  MConfigureLoadAll.OnClick = [this] { LoadButtons(-1); };
  MConfigureSave.OnClick = [this] { MConfigureSave_Click(); };
}

void frmButtonBar::Form_Load() {
  const Platform& platform = program_.platform;
  const Rect outer = OuterBounds();
  const Rect last = MacroButton[kLayoutButton].Bounds();
  widthMargin_ = outer.width - last.left;
  heightMargin_ = outer.height - last.top;
  for (std::size_t index = 0; index < kSpeechButtons; ++index)
    SetText(index, ReadText(platform, settings::ButtonTexts[index]));
  ButtonLayout = ReadWhole(platform, settings::ButtonBarLayout);
  ShowLayoutToCome();
  ChangeLayout(ButtonLayout);
  GoBeside(platform, *this, main_);
  GoToStoredPlace(platform, *this, settings::ButtonBarXPosition, settings::ButtonBarYPosition);
  WriteText(platform, settings::ButtonBarVisible, L"-1");
}

// A bar that the program itself closes comes back at the next start.
void frmButtonBar::Form_QueryUnload(bool&, CloseReason reason) {
  if (reason == CloseReason::User) WriteFlag(program_.platform, settings::ButtonBarVisible, false);
}

void frmButtonBar::Form_Unload() {
  StorePlace(program_.platform, *this, settings::ButtonBarXPosition, settings::ButtonBarYPosition);
  WriteWhole(program_.platform, settings::ButtonBarLayout, ButtonLayout);
}

void frmButtonBar::ShowLayoutToCome() {
  MacroButton[kLayoutButton].SetCaption(ButtonLayout == kRow ? L"&Vertical" : L"&Horizontal");
}

void frmButtonBar::ChangeLayout(int layout) {
  Rect place = MacroButton[0].Bounds();
  for (std::size_t index = 1; index < MacroButton.size(); ++index) {
    if (layout == kRow)
      place.left += place.width;
    else
      place.top += place.height;
    MacroButton[index].SetBounds(place);
  }
  SetOuterSize({place.left + widthMargin_, place.top + heightMargin_});
}

void frmButtonBar::MacroButton_Click(std::size_t index) {
  if (index == kLayoutButton) {
    ButtonLayout = 1 - ButtonLayout;
    ShowLayoutToCome();
    ChangeLayout(ButtonLayout);
    return;
  }
  const Platform& platform = program_.platform;
  const WindowHandle game = FindGameWindow(platform.windows);
  SendLine(platform, game, MacroButton[index].Caption() + L' ', main_.MOptionsAuto.Checked(), kEnterPause);
}

void frmButtonBar::MacroButton_MouseDown(std::size_t index, const MouseEvent& event) {
  if (event.shift != 0) return;
  MConfigureConfigure.SetEnabled(index != kLayoutButton);
  MConfigureLoadSingle.SetEnabled(index != kLayoutButton);
  CurrentButton = index;
  if (event.button == MouseButton::Right) PopupMenu(MConfigure);
}

void frmButtonBar::SetText(std::size_t index, const std::wstring& text) {
  MacroButton[index].SetCaption(text);
  MacroButton[index].SetToolTip(text);
}

void frmButtonBar::SetAndKeepText(std::size_t index, const std::wstring& text) {
  SetText(index, text);
  WriteText(program_.platform, settings::ButtonTexts[index], text);
}

void frmButtonBar::MConfigureConfigure_Click() {
  const std::size_t index = CurrentButton;
  const auto answer =
      program_.platform.dialogs.AskText({.prompt = L"Please enter the new text for the selected button",
                                         .title = kProgramTitle,
                                         .preset = MacroButton[index].Caption()});
  if (answer && !answer->empty()) SetAndKeepText(index, *answer);
}

void frmButtonBar::LoadButtons(int index) {
  const Platform& platform = program_.platform;
  const auto path =
      platform.dialogs.AskOpenFile({.title = L"Please select the button definition file you want to load",
                                    .filters = ButtonFileFilters(),
                                    .folder = ButtonFolder(),
                                    .mustExist = true});
  if (!path) return;
  const auto bytes = platform.files.Read(*path);
  if (!bytes) return Complain();
  const std::vector<std::wstring> texts = ReadButtonFile(*bytes, platform.text);
  for (std::size_t button = 0; button < texts.size(); ++button)
    if (index == -1 || index == static_cast<int>(button)) SetAndKeepText(button, texts[button]);
}

void frmButtonBar::MConfigureSave_Click() {
  const Platform& platform = program_.platform;
  const auto path =
      platform.dialogs.AskSaveFile({.title = L"Please select the button definition file you want to save",
                                    .filters = ButtonFileFilters(),
                                    .folder = ButtonFolder(),
                                    .fileName = L"Untitled.btn",
                                    .overwritePrompt = true});
  if (!path) return;
  std::vector<std::wstring> texts;
  for (std::size_t index = 0; index < kSpeechButtons; ++index) texts.push_back(MacroButton[index].Caption());
  if (platform.files.Write(*path, WriteButtonFile(texts, platform.text))) return;
  Complain();
  ExplainProtectedFolder(program_);
}

// The same words for reading and writing.
void frmButtonBar::Complain() {
  ShowBox(program_.platform, BoxIcon::Stop, L"Error, can't open button definition file");
}

std::wstring frmButtonBar::ButtonFolder() const {
  return program_.platform.files.ProgramFolder() + L"\\Buttons";
}

}  // namespace troth
