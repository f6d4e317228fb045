// Who made the program, where its news are, and what nobody answers for.
#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/LinkLabel.h"

namespace troth {

class Program;

class frmAbout final : public Form {
 public:
  explicit frmAbout(Program& program);

  CommandButton cmdOK{*this,
                      {.name = L"cmdOK",
                       .caption = L"OK",
                       .bounds = {240, 4320, 1395, 375},
                       .isDefault = true,
                       .isCancel = true}};
  CommandButton cmdCredits{
      *this, {.name = L"cmdCredits", .caption = L"&Credits", .bounds = {1755, 4320, 1395, 375}}};
  CommandButton cdmTip{*this,
                       {.name = L"cdmTip", .caption = L"&Tip Of The Day", .bounds = {3270, 4320, 1515, 375}}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {4905, 4320, 1395, 375}}};
  Label lblTitle{
      *this,
      {.name = L"lblTitle", .bounds = {240, 180, 6060, 480}, .letters = {.bold = true, .percent = 180}}};
  Label lblVersion{*this, {.name = L"lblVersion", .bounds = {240, 690, 6060, 255}}};
  Label lblDescription{*this, {.name = L"lblDescription", .bounds = {240, 1050, 6060, 1095}, .wraps = true}};
  LinkLabel lblEmail{*this, {.name = L"lblEmail", .bounds = {240, 2160, 6060, 255}}};
  Label lblLink{*this,
                {.name = L"lblLink",
                 .caption = L"Check for updated versions and news on:",
                 .bounds = {240, 2580, 6060, 255}}};
  LinkLabel lblWebsite{*this,
                       {.name = L"lblWebsite",
                        .toolTip = L"Browse the Trothline home page",
                        .bounds = {240, 2850, 6060, 255}}};
  Label lblDisclaimer{*this, {.name = L"lblDisclaimer", .bounds = {240, 3270, 6060, 870}, .wraps = true}};

 private:
  void Form_Load() override;

  Program& program_;
};

}  // namespace troth
