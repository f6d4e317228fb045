// The release notes, shown modally while the main window loads, until the user ticks them away for this
// version.
#pragma once

#include "platform/forms/CheckBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"

namespace troth {

class Program;

class frmIntro final : public Form {
 public:
  explicit frmIntro(Program& program);

  CommandButton cmdOK{*this,
                      {.name = L"cmdOK",
                       .caption = L"OK",
                       .bounds = {2640, 4860, 1395, 375},
                       .isDefault = true,
                       .isCancel = true}};
  CommandButton cmdCredits{
      *this, {.name = L"cmdCredits", .caption = L"&Credits", .bounds = {4155, 4860, 1395, 375}}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {5670, 4860, 1395, 375}}};
  CheckBox chkNeverAgain{*this,
                         {.name = L"chkNeverAgain",
                          .caption = L"&Do not show this window again",
                          .bounds = {240, 4380, 4800, 255}}};
  Label lblTitle{
      *this,
      {.name = L"lblTitle", .bounds = {240, 180, 6825, 480}, .letters = {.bold = true, .percent = 180}}};
  Label lblVersion{*this, {.name = L"lblVersion", .bounds = {240, 690, 6825, 255}}};
  Label lblDescription{*this, {.name = L"lblDescription", .bounds = {240, 1110, 6825, 3150}, .wraps = true}};

 private:
  void Form_Load() override;
  void Form_Unload() override;

  Program& program_;
};

}  // namespace troth
