// The dialog of the variables that change while a ceremony runs. Its list is a snapshot: unattended speech
// goes on meanwhile, and what a directive changes shows at the next refresh. Opened from the main window.
#pragma once

#include <optional>
#include <string>

#include "platform/forms/CommandButton.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"

namespace troth {

class Program;

class frmDynamic final : public Form {
 public:
  explicit frmDynamic(Program& program);

  Label lblVars{*this, {.name = L"lblVars", .caption = L"&Variables", .bounds = {180, 150, 2700, 255}}};
  ListBox lstDynamic{*this, {.name = L"lstDynamic", .bounds = {180, 420, 4290, 3030}, .isSorted = true}};
  CommandButton cmdAdd{*this, {.name = L"cmdAdd", .caption = L"&Add...", .bounds = {4650, 420, 1350, 375}}};
  CommandButton cmdEdit{*this,
                        {.name = L"cmdEdit", .caption = L"&Edit...", .bounds = {4650, 900, 1350, 375}}};
  CommandButton cmdDelete{*this,
                          {.name = L"cmdDelete", .caption = L"&Delete", .bounds = {4650, 1380, 1350, 375}}};
  CommandButton cmdClear{*this,
                         {.name = L"cmdClear", .caption = L"&Clear All", .bounds = {4650, 1860, 1350, 375}}};
  CommandButton cmdOK{*this,
                      {.name = L"cmdOK",
                       .caption = L"Close",
                       .bounds = {4650, 2595, 1350, 375},
                       .isDefault = true,
                       .isCancel = true}};
  CommandButton cdmHelp{*this, {.name = L"cdmHelp", .caption = L"&Help", .bounds = {4650, 3075, 1350, 375}}};

  // Fills the list from the variables and selects its first entry.
  void RefreshDynamicList();
  // Asks for a new value of the selected variable.
  void EditSelectedVar();

 private:
  void Form_Load() override { RefreshDynamicList(); }
  void lstDynamic_DblClick();
  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  std::optional<std::wstring> SelectedName() const;

  Program& program_;
};

}  // namespace troth
