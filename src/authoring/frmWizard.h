// The wizard that writes a wedding script: asks for language, sections, style, add-on features and a name on
// five steps, and writes the script into the folder of the user's own. Opened modally from the main window;
// the loaded script is not touched.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "authoring/ScriptGenerator.h"
#include "authoring/WizardTables.h"
#include "platform/forms/Canvas.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/Form.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/TextBox.h"

namespace troth {

class Program;

class frmWizard final : public Form {
 public:
  explicit frmWizard(Program& program);

  // One frame for each step, of which one is in sight. The steps share their text and picture; the rest
  // follows.
  std::array<Frame, kSteps> fraStep =
      MakeControls<kSteps>([this](std::size_t step) { return Frame(*this, FrameOf(step)); });
  std::array<Label, kSteps> lblStep =
      MakeControls<kSteps>([this](std::size_t step) { return Label(fraStep[step], TextOf(step)); });
  std::array<Canvas, kSteps> imgStep =
      MakeControls<kSteps>([this](std::size_t step) { return Canvas(fraStep[step], PictureOf(step)); });

  std::array<OptionButton, kLanguages> optLanguage = MakeControls<kLanguages>(
      [this](std::size_t index) { return OptionButton(fraStep[0], LanguageOf(index)); });

  std::array<CheckBox, kSections> chkSection =
      MakeControls<kSections>([this](std::size_t index) { return CheckBox(fraStep[1], SectionOf(index)); });

  std::array<OptionButton, kStyles> optStyle =
      MakeControls<kStyles>([this](std::size_t index) { return OptionButton(fraStep[2], StyleOf(index)); });

  CheckBox chkEmotes{fraStep[3],
                     {.name = L"chkEmotes",
                      .caption = L"&Include emotes",
                      .toolTip = L"Include periodic emotes between sections",
                      .bounds = {kTextLeft, 2340, kTextWidth, 255},
                      .ticked = true}};
  CheckBox chkTellGroom{
      fraStep[3],
      {.name = L"chkTellGroom",
       .caption = L"Suggest replies to the &Groom",
       .toolTip =
           L"Uses party messages in the script to automatically suggest the groom the correct answers.",
       .bounds = {kTextLeft, 2700, kTextWidth, 255}}};
  CheckBox chkTellBride{
      fraStep[3],
      {.name = L"chkTellBride",
       .caption = L"Suggest replies to the &Bride",
       .toolTip =
           L"Uses party messages in the script to automatically suggest the bride the correct answers.",
       .bounds = {kTextLeft, 3060, kTextWidth, 255}}};
  CheckBox chkVerbous{fraStep[3],
                      {.name = L"chkVerbous",
                       .caption = L"&Verbous comment mode",
                       .toolTip = L"Generates verbous comments in the script file.",
                       .bounds = {kTextLeft, 3420, kTextWidth, 255},
                       .ticked = true}};

  Label Label1{fraStep[4],
               {.name = L"Label1", .caption = L"&Script Name:", .bounds = {kTextLeft, 2640, 1215, 255}}};
  TextBox txtScriptName{fraStep[4],
                        {.name = L"txtScriptName",
                         .toolTip = L"Enter the script name here",
                         .bounds = {kTextLeft + 1260, 2610, kTextWidth - 1260, 315}}};
  CheckBox chkEdit{fraStep[4],
                   {.name = L"chkEdit",
                    .caption = L"&Edit Generated Script",
                    .toolTip = L"Click here to automatically edit your generated script after you are done.",
                    .bounds = {kTextLeft, 3120, kTextWidth, 255}}};

  // The line above the buttons, which stand on the form itself: a frame would paint over them.
  PictureBox picNav{
      *this, {.name = L"picNav", .bounds = {0, kPageHeight + 30, 7245, 15}, .backColor = Rgb(160, 160, 160)}};
  std::array<CommandButton, 5> cmdNav =
      MakeControls<5>([this](std::size_t index) { return CommandButton(*this, NavOf(index)); });

 private:
  // Pages and bar share the inside of the window, whose outer size is fixed.
  static constexpr int kPageHeight = 4260;
  static constexpr int kTextLeft = 1980;
  static constexpr int kTextWidth = 4905;

  static FrameOptions FrameOf(std::size_t step);
  static LabelOptions TextOf(std::size_t step);
  static CanvasOptions PictureOf(std::size_t step);
  static OptionButtonOptions LanguageOf(std::size_t index);
  static CheckBoxOptions SectionOf(std::size_t index);
  static OptionButtonOptions StyleOf(std::size_t index);
  static CommandButtonOptions NavOf(std::size_t index);

  void Form_Load() override;
  void Form_Unload() override;
  void ListLanguages();
  void ShowStep(int step);
  void UpdateCaption(int step);
  void UpdateNavButtons(int step);
  void ShowHelp();
  void cmdFinish_Click();
  bool MayReplace(const std::wstring& path, const std::wstring& name);
  WizardChoices Choices() const;
  void ReportOutcome(ScriptGenerator::Outcome outcome);
  void EditScript(const std::wstring& path);
  void Complain(const std::wstring& text, const wchar_t* title = kWizardTitle);

  Program& program_;
  std::int16_t CurrentStep = 0;
  bool FinishAllowed = false;
  bool HelpOpened = false;
};

}  // namespace troth
