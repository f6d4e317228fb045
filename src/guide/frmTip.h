// The tip of the day: the first window of every run, which hands over to the main window when it goes away.
// Opened again from the about window it only shows tips.
#pragma once

#include <string>
#include <vector>

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"

namespace troth {

class Program;

class frmTip final : public Form {
 public:
  explicit frmTip(Program& program);

  // Whether the tips stay up at the start of the program.
  static bool IsWantedAtStart(const Program& program);

  // Reads one tip a line and shows one of them; false if there is no such file.
  bool LoadTips(const std::wstring& path);
  void DisplayCurrentTip();

  CommandButton cmdOK{*this,
                      {.name = L"cmdOK",
                       .caption = L"OK",
                       .bounds = {5760, 180, 1575, 375},
                       .isDefault = true,
                       .isCancel = true}};
  CommandButton cmdNextTip{
      *this, {.name = L"cmdNextTip", .caption = L"&Next Tip", .bounds = {5760, 630, 1575, 375}}};
  CommandButton cmdAbout{
      *this, {.name = L"cmdAbout", .caption = L"&About Trothline", .bounds = {5760, 1080, 1575, 375}}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {5760, 1530, 1575, 375}}};
  CheckBox chkLoadTipsAtStartup{*this,
                                {.name = L"chkLoadTipsAtStartup",
                                 .caption = L"&Show Tips at Startup",
                                 .bounds = {240, 3300, 3000, 255}}};
  Label lblHeading{*this,
                   {.name = L"lblHeading",
                    .caption = L"Did you know...",
                    .bounds = {240, 180, 5280, 360},
                    .letters = {.bold = true, .percent = 140}}};
  Label lblTipText{*this, {.name = L"lblTipText", .bounds = {240, 660, 5280, 1500}, .wraps = true}};
  Label lblNotes{*this,
                 {.name = L"lblNotes",
                  .caption = L"Please check the about box for additional release notes",
                  .bounds = {240, 2280, 5280, 255}}};
  Label lblAppName{*this,
                   {.name = L"lblAppName", .bounds = {240, 2580, 5280, 255}, .letters = {.bold = true}}};
  Label lblAuthor{*this, {.name = L"lblAuthor", .bounds = {240, 2880, 5280, 255}}};

 private:
  void Form_Load() override;
  void Form_Unload() override;
  void ChooseTip(int step);

  Program& program_;
  std::vector<std::wstring> Tips;
  int CurrentTip = 0;
};

}  // namespace troth
