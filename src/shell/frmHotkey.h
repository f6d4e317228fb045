// The dialog that sets the global hotkeys, the options of screenshots and those of the edit window. Opened
// from the menu of the main window. OK stores all three tabs and registers the hotkeys again; nothing changes
// before.
#pragma once

#include <array>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/DropDownList.h"
#include "platform/forms/Form.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/TextBox.h"
#include "shell/HotkeyTable.h"

namespace troth {

class Hotkeys;
class Program;

class frmHotkey final : public Form {
 public:
  frmHotkey(Program& program, Hotkeys& hotkeys);

  TabStrip tabHotkey{*this,
                     {.name = L"tabHotkey",
                      .bounds = {120, 120, 5295, 5925},
                      .tabs = {{.caption = L"Speech", .toolTip = L"Configure speech hotkey"},
                               {.caption = L"Screenshot", .toolTip = L"Configure screenshot hotkey"},
                               {.caption = L"Edit Box", .toolTip = L"Configure Dynamic Edit Box Options"}},
                      .accessibleName = L"Hotkeys and screenshots"}};

  Frame frmSpeech{*this, {.name = L"frmSpeech", .caption = L"Speech", .bounds = {240, 555, 5055, 5370}}};
  CheckBox chkEnable{
      frmSpeech,
      {.name = L"chkEnable", .caption = L"&Enable Speech Hotkey", .bounds = {240, 360, 4575, 255}}};
  CheckBox chkControl{frmSpeech,
                      {.name = L"chkControl", .caption = L"&Control", .bounds = {480, 750, 1080, 255}}};
  CheckBox chkAlt{frmSpeech, {.name = L"chkAlt", .caption = L"&Alt", .bounds = {1620, 750, 720, 255}}};
  CheckBox chkShift{frmSpeech, {.name = L"chkShift", .caption = L"&Shift", .bounds = {2400, 750, 840, 255}}};
  Label lblKey{frmSpeech, {.name = L"lblKey", .caption = L"&Key", .bounds = {3300, 750, 480, 255}}};
  DropDownList cmbKey{frmSpeech, {.name = L"cmbKey", .bounds = {3840, 690, 975, 315}}};
  Label lblState{frmSpeech, {.name = L"lblState", .bounds = kStateBounds}};

  Frame frmScreenShot{*this,
                      {.name = L"frmScreenShot",
                       .caption = L"Screenshot",
                       .bounds = {240, 555, 5055, 5370},
                       .visible = false}};
  CheckBox chkSEnable{
      frmScreenShot,
      {.name = L"chkSEnable", .caption = L"E&nable Screenshot Hotkey", .bounds = {240, 360, 4575, 255}}};
  CheckBox chkSControl{frmScreenShot,
                       {.name = L"chkSControl", .caption = L"C&ontrol", .bounds = {480, 750, 1080, 255}}};
  CheckBox chkSAlt{frmScreenShot, {.name = L"chkSAlt", .caption = L"A&lt", .bounds = {1620, 750, 720, 255}}};
  CheckBox chkSShift{frmScreenShot,
                     {.name = L"chkSShift", .caption = L"S&hift", .bounds = {2400, 750, 840, 255}}};
  Label lblSKey{frmScreenShot, {.name = L"lblSKey", .caption = L"Ke&y", .bounds = {3300, 750, 480, 255}}};
  DropDownList cmbSKey{frmScreenShot, {.name = L"cmbSKey", .bounds = {3840, 690, 975, 315}}};
  Label lblSState{frmScreenShot, {.name = L"lblSState", .bounds = kStateBounds}};
  CheckBox chkLabel{
      frmScreenShot,
      {.name = L"chkLabel", .caption = L"A&dd DescriptionLabel", .bounds = {240, 1320, 4575, 255}}};
  CheckBox chkNames{
      frmScreenShot,
      {.name = L"chkNames", .caption = L"Na&mes Of The Couple", .bounds = {480, 1680, 2040, 255}}};
  CheckBox chkDate{frmScreenShot,
                   {.name = L"chkDate", .caption = L"Da&te And Time", .bounds = {2640, 1680, 2175, 255}}};
  CheckBox chkCounselor{
      frmScreenShot,
      {.name = L"chkCounselor", .caption = L"&Free Additional Comment", .bounds = {480, 2070, 2400, 255}}};
  TextBox txtCounselor{frmScreenShot,
                       {.name = L"txtCounselor",
                        .bounds = {2940, 2010, 1875, 315},
                        .accessibleName = L"Free Additional Comment"}};
  Label lblPositon{frmScreenShot,
                   {.name = L"lblPositon", .caption = L"Label &Position", .bounds = {480, 2490, 1320, 255}}};
  DropDownList cmbPosition{frmScreenShot, {.name = L"cmbPosition", .bounds = {1860, 2430, 1695, 315}}};
  Label lblColor{frmScreenShot,
                 {.name = L"lblColor", .caption = L"Colo&r", .bounds = {480, 2910, 1320, 255}}};
  PictureBox picColor{frmScreenShot,
                      {.name = L"picColor", .bounds = {1860, 2850, 615, 315}, .isForChoosing = true}};
  Label lblFileName{frmScreenShot,
                    {.name = L"lblFileName", .caption = L"&Base Filename", .bounds = {240, 3510, 1560, 255}}};
  TextBox txtFileName{frmScreenShot, {.name = L"txtFileName", .bounds = {1860, 3450, 2955, 315}}};
  Label lblFile1{frmScreenShot,
                 {.name = L"lblFile1",
                  .caption = L"Don't add any extension. Files will be saved in",
                  .bounds = {240, 3900, 4575, 255}}};
  Label lblFile2{frmScreenShot,
                 {.name = L"lblFile2", .caption = L"", .bounds = {240, 4170, 4575, 480}, .wraps = true}};
  CheckBox chkPreview{
      frmScreenShot,
      {.name = L"chkPreview", .caption = L"Previe&w Screenshot", .bounds = {240, 4710, 2280, 255}}};
  CheckBox chkClient{frmScreenShot,
                     {.name = L"chkClient", .caption = L"Remo&ve Border", .bounds = {2640, 4710, 2175, 255}}};

  Frame frmBox{
      *this, {.name = L"frmBox", .caption = L"Edit Box", .bounds = {240, 555, 5055, 5370}, .visible = false}};
  CheckBox chkEEnable{
      frmBox,
      {.name = L"chkEEnable", .caption = L"E&nable Edit Box Hotkey", .bounds = {240, 360, 4575, 255}}};
  CheckBox chkEControl{frmBox,
                       {.name = L"chkEControl", .caption = L"C&ontrol", .bounds = {480, 750, 1080, 255}}};
  CheckBox chkEAlt{frmBox, {.name = L"chkEAlt", .caption = L"A&lt", .bounds = {1620, 750, 720, 255}}};
  CheckBox chkEShift{frmBox, {.name = L"chkEShift", .caption = L"S&hift", .bounds = {2400, 750, 840, 255}}};
  Label lblEKey{frmBox, {.name = L"lblEKey", .caption = L"Ke&y", .bounds = {3300, 750, 480, 255}}};
  DropDownList cmbEKey{frmBox, {.name = L"cmbEKey", .bounds = {3840, 690, 975, 315}}};
  Label lblEState{frmBox, {.name = L"lblEState", .bounds = kStateBounds}};
  CheckBox chkSticky{
      frmBox,
      {.name = L"chkSticky", .caption = L"\"&Glue\" to the KM window", .bounds = {240, 1320, 4575, 255}}};

  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {120, 6225, 1215, 375}}};
  CommandButton cmdOK{
      *this, {.name = L"cmdOK", .caption = L"OK", .bounds = {2880, 6225, 1215, 375}, .isDefault = true}};
  CommandButton cmdCancel{
      *this,
      {.name = L"cmdCancel", .caption = L"Cancel", .bounds = {4200, 6225, 1215, 375}, .isCancel = true}};

 private:
  static constexpr Rect kStateBounds{480, 1050, 4335, 240};

  // The controls of one hotkey, which are the same on each tab. `state` says whether the chosen combination
  // will work.
  struct HotkeyPage {
    Frame& frame;
    CheckBox& enable;
    CheckBox& control;
    CheckBox& alt;
    CheckBox& shift;
    DropDownList& key;
    Label& state;
  };

  void Form_Load() override;
  void tabHotkey_Click();
  void picColor_Click();
  void cmdOK_Click();
  void RefreshHotkeyControls();
  void ShowHotkeyStates();
  bool WouldBeTaken(const HotkeyRecord& hotkey);
  HotkeyRecord Chosen(std::size_t number) const;
  bool ComplainsOfConflict() const;
  void ShowScreenshotOptions();
  void TakeScreenshotOptions();

  Program& program_;
  Hotkeys& hotkeys_;
  // One for each row of the table of hotkeys, at the same number as its tab.
  std::array<HotkeyPage, kHotkeyTable.size()> pages_;
};

}  // namespace troth
