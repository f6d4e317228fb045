// The dialog of the user's own variables. What is changed here counts at once; OK alone writes the file, and
// is the only way out. Opened from the main window, which puts the new values into the script afterwards.
#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/TextBox.h"

namespace troth {

class CustVar;
class Program;

class frmVars final : public Form {
 public:
  explicit frmVars(Program& program);

  Label Label1{*this, {.name = L"Label1", .caption = L"&Variables", .bounds = {180, 150, 2700, 255}}};
  ListBox lstVars{*this, {.name = L"lstVars", .bounds = {180, 420, 2700, 2910}}};
  Label Label2{*this, {.name = L"Label2", .caption = L"Value", .bounds = {3060, 150, 3300, 255}}};
  TextBox txtVal{*this, {.name = L"txtVal", .bounds = {3060, 420, 3300, 315}, .enabled = false}};
  CommandButton cmdNew{*this,
                       {.name = L"cmdNew", .caption = L"&Add Variable", .bounds = {3060, 930, 1590, 375}}};
  CommandButton cmdDelete{*this,
                          {.name = L"cmdDelete",
                           .caption = L"&Delete Variable",
                           .bounds = {4770, 930, 1590, 375},
                           .enabled = false}};
  CommandButton cmdOK{
      *this, {.name = L"cmdOK", .caption = L"OK", .bounds = {3060, 2955, 1590, 375}, .isDefault = true}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {4770, 2955, 1590, 375}}};

 private:
  void Form_Load() override;
  void lstVars_Click();
  void txtVal_Change();
  void cmdNew_Click();
  void cmdDelete_Click();
  void cmdOK_Click();
  CustVar* Selected() const;

  Program& program_;
};

}  // namespace troth
