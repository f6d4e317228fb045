#include "authoring/frmWizard.h"

#include <algorithm>
#include <memory>

#include "authoring/StepPictures.h"
#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "core/modMain.h"
#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "platform/services/ShellService.h"
#include "platform/services/TimeService.h"
#include "script/FileName.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"
#include "script/ScriptFileName.h"
#include "script/Text.h"

namespace troth {

namespace {

constexpr int kFirstStep = 0;
constexpr int kAddOnStep = 3;
constexpr int kLastStep = 4;

constexpr std::size_t kHelp = 0;
constexpr std::size_t kCancel = 1;
constexpr std::size_t kBack = 2;
constexpr std::size_t kNext = 3;
constexpr std::size_t kFinish = 4;

constexpr int kOutOfSight = -10000;

// A longer name of a language is cut off on its button, and is shown by the tool tip.
constexpr std::size_t kLongName = 28;

// The name of a folder as a caption, in which a single "&" would be a mnemonic.
std::wstring CaptionOf(std::wstring name) {
  for (auto at = name.find(L'&'); at != std::wstring::npos; at = name.find(L'&', at + 2))
    name.insert(at, 1, L'&');
  return name;
}

std::wstring NameOf(std::wstring caption) {
  for (auto at = caption.find(L"&&"); at != std::wstring::npos; at = caption.find(L"&&", at + 1))
    caption.erase(at, 1);
  return caption;
}

template <class Buttons>
std::size_t IndexOfSelected(const Buttons& buttons) {
  const auto selected = std::find_if(buttons.begin(), buttons.end(),
                                     [](const OptionButton& button) { return button.Selected(); });
  return selected == buttons.end() ? 0 : static_cast<std::size_t>(selected - buttons.begin());
}

}  // namespace

frmWizard::frmWizard(Program& program)
    : Form(program.platform.forms, {.name = L"frmWizard",
                                    .caption = kWizardTitle,
                                    .clientSize = {7155, 4860},
                                    .border = BorderStyle::FixedDialog,
                                    .isCentred = true}),
      program_(program) {
  OnHelp = [this] { HelpOpened = true; };
  cmdNav[kHelp].OnClick = [this] { ShowHelp(); };
  cmdNav[kCancel].OnClick = [this] { Unload(); };
  cmdNav[kBack].OnClick = [this] { ShowStep(CurrentStep - 1); };
  cmdNav[kNext].OnClick = [this] {
    // Enter presses it from a box of the step, too, which cannot keep the keyboard.
    cmdNav[kNext].SetFocus();
    ShowStep(CurrentStep + 1);
  };
  cmdNav[kFinish].OnClick = [this] { cmdFinish_Click(); };
}

FrameOptions frmWizard::FrameOf(std::size_t step) {
  // The last two bear the same caption; the window's title counts the steps.
  constexpr const wchar_t* kCaptions[kSteps] = {L"Introduction Screen", L"Step 1", L"Step 2", L"Step 3",
                                                L"Step 3"};
  return {.name = ArrayName(L"fraStep", step),
          .caption = kCaptions[step],
          .bounds = {kOutOfSight, 0, 7035, kPageHeight},
          .enabled = false};
}

LabelOptions frmWizard::TextOf(std::size_t step) {
  constexpr int kHeights[kSteps] = {1200, 1260, 1200, 1980, 2220};
  return {.name = ArrayName(L"lblStep", step),
          .bounds = {kTextLeft, 300, kTextWidth, kHeights[step]},
          .wraps = true};
}

CanvasOptions frmWizard::PictureOf(std::size_t step) {
  return {.name = ArrayName(L"imgStep", step), .bounds = {210, 330, 1575, 3600}, .scale = kStepPictureScale};
}

OptionButtonOptions frmWizard::LanguageOf(std::size_t index) {
  constexpr int kRows = 5;
  constexpr int kColumnWidth = 2460;
  const int row = static_cast<int>(index) % kRows;
  const int column = static_cast<int>(index) / kRows;
  return {.name = ArrayName(L"optLanguage", index),
          .caption = L"Language",
          .bounds = {kTextLeft + column * kColumnWidth, 1680 + row * 420, kColumnWidth - 60, 285},
          .visible = false,
          .enabled = false,
          .isSelected = index == 0};
}

CheckBoxOptions frmWizard::SectionOf(std::size_t index) {
  const WizardOption& section = kWizardSections[index];
  return {.name = ArrayName(L"chkSection", index),
          .caption = section.caption,
          .toolTip = section.toolTip,
          .bounds = {kTextLeft, 1575 + static_cast<int>(index) * 285, kTextWidth, 255},
          .ticked = true};
}

OptionButtonOptions frmWizard::StyleOf(std::size_t index) {
  const WizardOption& style = kWizardStyles[index];
  return {.name = ArrayName(L"optStyle", index),
          .caption = style.caption,
          .toolTip = style.toolTip,
          .bounds = {kTextLeft, 1680 + static_cast<int>(index) * 420, kTextWidth, 285},
          .isSelected = index == 0};
}

CommandButtonOptions frmWizard::NavOf(std::size_t index) {
  constexpr struct {
    const wchar_t* caption;
    int left;
  } kButtons[] = {
      {L"Help", 120}, {L"Cancel", 1260}, {L"< &Back", 3600}, {L"&Next >", 4740}, {L"&Finish", 5940}};
  return {.name = ArrayName(L"cmdNav", index),
          .caption = kButtons[index].caption,
          .bounds = {kButtons[index].left, kPageHeight + 105, 1080, 375},
          .isDefault = index == kNext || index == kFinish,
          .isCancel = index == kCancel};
}

void frmWizard::Form_Load() {
  SetOuterSize({7245, 5430});
  HelpOpened = false;
  FinishAllowed = false;
  ShowStep(kFirstStep);
  for (std::size_t step = 0; step < kSteps; ++step) {
    lblStep[step].SetCaption(std::wstring(ResourceString(kFirstStepText + static_cast<int>(step))));
    DrawStepPicture(imgStep[step], step);
  }
  ListLanguages();
}

void frmWizard::Form_Unload() {
  if (HelpOpened) modMain::CloseHelp(program_);
}

void frmWizard::ListLanguages() {
  const FileService& files = program_.platform.files;
  auto button = optLanguage.begin();
  for (const FileEntry& entry : files.List(files.ProgramFolder() + L"\\Wizard")) {
    if (!entry.isFolder) continue;
    if (button == optLanguage.end()) return;
    button->SetCaption(CaptionOf(entry.name));
    if (entry.name.size() > kLongName) button->SetToolTip(entry.name);
    button->SetEnabled(true);
    button->SetVisible(true);
    ++button;
  }
}

void frmWizard::ShowStep(int step) {
  if (step == kAddOnStep) FinishAllowed = false;
  if (step == kLastStep) FinishAllowed = true;
  const auto moveTo = [](Frame& frame, int left) {
    frame.SetBounds({left, 0, frame.Bounds().width, frame.Bounds().height});
  };
  Frame& before = fraStep[static_cast<std::size_t>(CurrentStep)];
  Frame& shown = fraStep[static_cast<std::size_t>(step)];
  before.SetEnabled(false);
  moveTo(shown, 0);
  if (step != CurrentStep) moveTo(before, kOutOfSight);
  shown.SetEnabled(true);
  UpdateCaption(step);
  UpdateNavButtons(step);
}

void frmWizard::UpdateCaption(int step) {
  SetCaption(std::wstring(kWizardTitle) + L" (Step " + std::to_wstring(step + 1) + L" of " +
             std::to_wstring(kSteps) + L')');
}

void frmWizard::UpdateNavButtons(int step) {
  CurrentStep = static_cast<std::int16_t>(step);
  SetHelpContext((step + 2) * 10);
  cmdNav[kBack].SetEnabled(step != kFirstStep);
  cmdNav[kFinish].SetEnabled(FinishAllowed);
  cmdNav[kNext].SetEnabled(step != kLastStep);
  // A button that can no longer be pressed has given the keyboard to any other.
  if (step == kFirstStep) cmdNav[kNext].SetFocus();
  if (step == kLastStep) txtScriptName.SetFocus();
}

void frmWizard::ShowHelp() {
  HelpOpened = true;
  modMain::ShowHelp(program_, *this);
}

WizardChoices frmWizard::Choices() const {
  WizardChoices choices{.LanguagePath = program_.platform.files.ProgramFolder() + L"\\Wizard\\" +
                                        NameOf(optLanguage[IndexOfSelected(optLanguage)].Caption()),
                        .StyleName = kWizardStyles[IndexOfSelected(optStyle)].tag,
                        .emotes = chkEmotes.Ticked(),
                        .tellGroom = chkTellGroom.Ticked(),
                        .tellBride = chkTellBride.Ticked(),
                        .verbous = chkVerbous.Ticked()};
  for (std::size_t i = 0; i < kSections; ++i) choices.sections[i] = chkSection[i].Ticked();
  return choices;
}

void frmWizard::cmdFinish_Click() {
  const Platform& platform = program_.platform;
  std::wstring name(TrimBlanks(txtScriptName.Text()));
  if (name.empty()) return Complain(L"Error. You must provide a valid script name.");
  name = WithScriptExtension(std::move(name));

  const std::wstring folder = MyScriptsFolder(platform.files);
  const std::wstring path = folder + L'\\' + name;
  // The name is looked at before the question: a file outside the folder is never replaced.
  const bool isName = IsFileName(name);
  if (isName) {
    platform.files.CreateFolder(folder);
    if (!MayReplace(path, name)) return;
  }
  const std::unique_ptr<FileWriter> script = isName ? platform.files.Create(path) : nullptr;
  if (!script) {
    Complain(L"Error: cannot create " + name);
    ExplainProtectedFolder(program_);
    return;
  }

  const WizardChoices choices = Choices();
  ScriptGenerator generator(platform.files, platform.text,
                            [&script](std::string_view bytes) { return script->Append(bytes); });
  auto outcome = generator.Generate(choices, platform.time.LongDate(platform.time.Now()));
  const bool isClosed = script->Close();
  if (!isClosed && outcome == ScriptGenerator::Outcome::Done) outcome = ScriptGenerator::Outcome::DiskError;
  ReportOutcome(outcome);
  if (outcome == ScriptGenerator::Outcome::Done && chkEdit.Ticked()) EditScript(path);
  Unload();
}

bool frmWizard::MayReplace(const std::wstring& path, const std::wstring& name) {
  if (!program_.platform.files.Exists(path)) return true;
  return program_.platform.dialogs.ShowMessage(
             {.text = name + L" already exists in the destination directory. Do you want to overwrite it?",
              .title = kWizardTitle,
              .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

void frmWizard::ReportOutcome(ScriptGenerator::Outcome outcome) {
  switch (outcome) {
    case ScriptGenerator::Outcome::Done:
      program_.platform.dialogs.ShowMessage({.text =
                                                 L"Congratulations! Your wedding script has been correctly "
                                                 L"generated and written to the disk.",
                                             .title = kWizardTitle,
                                             .icon = BoxIcon::Information});
      return;
    case ScriptGenerator::Outcome::DiskError:
      return Complain(L"A disk error occurred while writing your wedding script.");
    case ScriptGenerator::Outcome::MissingWizardFile:
      return Complain(std::wstring(L"Incorrect Wizard configuration. Please reinstall ") + kProgramTitle);
  }
}

void frmWizard::EditScript(const std::wstring& path) {
  if (program_.platform.shell.Open(path, L"", L"")) return;
  Complain(
      L"Error: cannot edit the generated script file. Either your default association for .txt file is "
      L"wrong, or "
      L"you are running out of memory.",
      kProgramTitle);
}

void frmWizard::Complain(const std::wstring& text, const wchar_t* title) {
  program_.platform.dialogs.ShowMessage({.text = text, .title = title, .icon = BoxIcon::Stop});
}

}  // namespace troth
