// The interface of the main window: its controls, its menu and the operations that the rest of the program
// calls. Everything that works on the main window knows only this; frmTroth implements it, a layer above.
#pragma once

#include <string>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/MenuItem.h"
#include "platform/forms/TextBox.h"
#include "platform/forms/Timer.h"

namespace troth {

class MainWindow : public Form {
 public:
  // Speaks `text`, or what stands in txtNext if `text` is empty; then the script moves on.
  virtual void DoSpeechRow(const std::wstring& text) = 0;
  // The finished sentence of the current row.
  virtual std::wstring SelectNewText() = 0;
  // Fills the lists from the live script and selects its first row.
  virtual void ShowLanguage() = 0;
  // Puts the present values of the variables into all rows; the selected row stays.
  virtual void RefreshScript() = 0;
  // Makes the file the live script, whatever is being spoken, and starts at its first row with
  // special-character translation off. A file that cannot be read ends the program.
  virtual void OpenScript(const std::wstring& path) = 0;
  // Ends unattended speech, if it runs.
  virtual void StopAutoSpeech() = 0;
  // The text with the dynamic variables in it.
  virtual std::wstring ExpandVariables(const std::wstring& text) = 0;
  // The text without the characters that the game client cannot take.
  virtual std::wstring UnicodeTranslate(const std::wstring& text) = 0;

  // In tab order. A label stands right before the control that its mnemonic leads to.
  Label lblGroom{*this, {.name = L"lblGroom", .caption = L"&Groom Name", .bounds = {120, 120, 975, 255}}};
  TextBox txtGroom{
      *this,
      {.name = L"txtGroom",
       .toolTip = L"Enter here the groom name. Script will change as soon as the text box loses focus",
       .bounds = {120, 360, 2775, 285}}};
  Label Label2{*this, {.name = L"Label2", .caption = L"&Bride Name", .bounds = {120, 720, 975, 255}}};
  TextBox txtBride{
      *this,
      {.name = L"txtBride",
       .toolTip = L"Enter here the bridename. Script will change as soon as the text box loses focus",
       .bounds = {120, 960, 2775, 285}}};
  Label Label3{*this, {.name = L"Label3", .caption = L"S&cript File", .bounds = {120, 1320, 1695, 255}}};
  TextBox txtFile{*this,
                  {.name = L"txtFile",
                   .toolTip = L"Current Script File",
                   .bounds = {120, 1560, 2295, 285},
                   .readOnly = true}};
  CommandButton cmdBrowse{*this,
                          {.name = L"cmdBrowse",
                           .caption = L"...",
                           .toolTip = L"Script Browser",
                           .bounds = {2400, 1560, 495, 315}}};
  Label Label1{*this, {.name = L"Label1", .caption = L"&Next Sentence", .bounds = {120, 1920, 1695, 255}}};
  TextBox txtNext{
      *this,
      {.name = L"txtNext", .toolTip = L"Next sentence to be spoken", .bounds = {120, 2160, 2775, 285}}};
  CommandButton cmdSpeak{*this,
                         {.name = L"cmdSpeak",
                          .caption = L"&Speak",
                          .toolTip = L"Sends the selected text to the Kestrel Moors window",
                          .bounds = {120, 2520, 735, 495},
                          .enabled = false,
                          .isDefault = true,
                          .ignoresDoubleClick = true}};
  CheckBox chkYell{*this,
                   {.name = L"chkYell",
                    .caption = L"&Yell ('!' Prefix)",
                    .toolTip = L"Use ! (yell) in front of each sentence spoken",
                    .bounds = {960, 2520, 1335, 255}}};
  Label lblPrefix{*this, {.name = L"lblPrefix", .caption = L"&Prefix", .bounds = {960, 2760, 495, 255}}};
  TextBox txtPrefix{*this,
                    {.name = L"txtPrefix",
                     .toolTip = L"Use this box to prefix every sentence with a text of your choice",
                     .bounds = {1440, 2760, 1455, 285}}};
  Label lblWedding{*this,
                   {.name = L"lblWedding", .caption = L"&Wedding Script", .bounds = {3000, 120, 1335, 255}}};
  ListBox lstWedding{
      *this,
      {.name = L"lstWedding",
       .bounds = {3000, 360, 5055, 2760},
       .hasTicks = true,
       .emptyText = L"There is no wedding script here yet.\r\n\r\n"
                    L"Choose one in the script browser: the button \"...\" beside the script file, or "
                    L"File, Script Browser.\r\n\r\n"
                    L"Or have one written for you: File, Wedding Script Wizard."}};

  // Small flags, one letter each, and the running time of learning and unattended speech.
  Label lblUnicode{*this,
                   {.name = L"lblUnicode",
                    .caption = L"U",
                    .toolTip = L"Unicode text is disabled",
                    .bounds = {1320, 0, 255, 255},
                    .visible = false,
                    .backColor = kFlagGround,
                    .foreColor = kFlagLetter}};
  Label lblTranslation{*this,
                       {.name = L"lblTranslation",
                        .caption = L"T",
                        .toolTip = L"Special character translation is disabled",
                        .bounds = {1560, 0, 255, 255},
                        .visible = false,
                        .backColor = kFlagGround,
                        .foreColor = kFlagLetter}};
  Label lblDebug{*this,
                 {.name = L"lblDebug",
                  .bounds = {1920, 0, 975, 255},
                  .visible = false,
                  .backColor = Rgb(0, 0, 0),
                  .foreColor = Rgb(255, 0, 0)}};

  Timer tmrSpeak{*this, {.name = L"tmrSpeak", .intervalMs = 5000}};
  Timer tmrLearn{*this, {.name = L"tmrLearn", .intervalMs = 100}};
  Timer tmrPatcch{*this, {.name = L"tmrPatcch", .intervalMs = 200, .enabled = true}};

  // An entry whose work is not there yet is disabled; the two that are hidden never get any.
  MenuItem MFile{*this, {.name = L"MFile", .caption = L"&File"}};
  MenuItem MFileSaveas{MFile, {.name = L"MFileSaveas", .caption = L"Save Script As..."}};
  MenuItem MFileScript{MFile, {.name = L"MFileScript", .caption = L"&Script Browser"}};
  MenuItem MFileWizard{MFile, {.name = L"MFileWizard", .caption = L"&Wedding Script Wizard"}};
  MenuItem MFileSep1{MFile, {.name = L"MFileSep1", .caption = L"-"}};
  MenuItem MFileQuit{MFile, {.name = L"MFileQuit", .caption = L"E&xit"}};

  MenuItem MView{*this, {.name = L"MView", .caption = L"&View"}};
  MenuItem MOptionsVertical{MView, {.name = L"MOptionsVertical", .caption = L"&Vertical Layout"}};
  MenuItem MOptionsTiny{MView, {.name = L"MOptionsTiny", .caption = L"&Tiny Window"}};
  MenuItem MViewIndex{MView, {.name = L"MViewIndex", .caption = L"&Index Window"}};
  MenuItem MViewButtonBar{MView, {.name = L"MViewButtonBar", .caption = L"&Button Bar"}};
  MenuItem MViewGestureBar{MView, {.name = L"MViewGestureBar", .caption = L"&Gesture Bar"}};
  MenuItem MViewEdit{MView, {.name = L"MViewEdit", .caption = L"&Edit Window"}};
  MenuItem MViewDynamic{MView, {.name = L"MViewDynamic", .caption = L"&Dynamic Variables..."}};
  MenuItem MViewAddressBook{MView,
                            {.name = L"MViewAddressBook", .caption = L"&Address Book...", .visible = false}};
  MenuItem MViewKMBook{MView, {.name = L"MViewKMBook", .caption = L"&KMBook"}};

  MenuItem MOPtions{*this, {.name = L"MOPtions", .caption = L"&Options"}};
  MenuItem MOptionsTop{MOPtions, {.name = L"MOptionsTop", .caption = L"&Always On Top"}};
  MenuItem MOptionsPopup{MOPtions,
                         {.name = L"MOptionsPopup", .caption = L"&Popup Messages", .checked = true}};
  MenuItem MOptionsAuto{
      MOPtions, {.name = L"MOptionsAuto", .caption = L"Autoter&minate Pending Speech", .checked = true}};
  MenuItem MOptionsLearning{MOPtions, {.name = L"MOptionsLearning", .caption = L"&Learning Mode"}};
  MenuItem MOptionsTranslate{
      MOPtions, {.name = L"MOptionsTranslate", .caption = L"Ena&ble Special Character Translation"}};
  MenuItem MOptionsUnicode{
      MOPtions, {.name = L"MOptionsUnicode", .caption = L"Enable &Unicode Characters", .checked = true}};
  MenuItem MOptionsSep1{MOPtions, {.name = L"MOptionsSep1", .caption = L"-"}};
  MenuItem MOptionsEmote{MOPtions, {.name = L"MOptionsEmote", .caption = L"Skip &Emote"}};
  MenuItem MOptionsAddParty{MOPtions, {.name = L"MOptionsAddParty", .caption = L"A&dd To Party..."}};
  MenuItem MOptionsCounselor{MOPtions, {.name = L"MOptionsCounselor", .caption = L"S&kip Party Messages"}};
  MenuItem MOptionsSep2{MOPtions, {.name = L"MOptionsSep2", .caption = L"-"}};
  MenuItem MOptionsHotkey{MOPtions, {.name = L"MOptionsHotkey", .caption = L"&Hotkeys And Screenshots..."}};
  MenuItem MOptionsAutoPatch{MOPtions,
                             {.name = L"MOptionsAutoPatch", .caption = L"Aut&oPatch...", .visible = false}};
  MenuItem MOptionsDefine{MOPtions, {.name = L"MOptionsDefine", .caption = L"&Define User Variables..."}};
  MenuItem MOptionsRestore{MOPtions, {.name = L"MOptionsRestore", .caption = L"&Restore Default Selection"}};
  MenuItem MOptionsUnattanded{MOPtions, {.name = L"MOptionsUnattanded", .caption = L"U&nattended Speech..."}};

  MenuItem MFileScreen{*this, {.name = L"MFileScreen", .caption = L"&Screen"}};
  MenuItem MScreenScresnshot{MFileScreen, {.name = L"MScreenScresnshot", .caption = L"&Take Screenshot"}};

  MenuItem MResize{*this, {.name = L"MResize", .caption = L"&Resize", .visible = false}};
  MenuItem MResizeOriginal{MResize, {.name = L"MResizeOriginal", .caption = L"&Restore Original Size"}};

  MenuItem MHelp{*this, {.name = L"MHelp", .caption = L"&Help"}};
  MenuItem MHelpContents{MHelp, {.name = L"MHelpContents", .caption = L"&Contents..."}};
  MenuItem MHelpSep1{MHelp, {.name = L"MHelpSep1", .caption = L"-"}};
  MenuItem MFileAbout{MHelp, {.name = L"MFileAbout", .caption = L"&About Trothline..."}};
  MenuItem MHelpCredits{MHelp, {.name = L"MHelpCredits", .caption = L"C&redits..."}};

 protected:
  using Form::Form;

 private:
  static constexpr Color kFlagGround = Rgb(255, 0, 0);
  static constexpr Color kFlagLetter = Rgb(0, 0, 64);
};

}  // namespace troth
