#include "livetools/frmDynamic.h"

#include "core/Program.h"
#include "core/modMain.h"
#include "script/MessageBoxes.h"
#include "script/Text.h"

namespace troth {

frmDynamic::frmDynamic(Program& program)
    : Form(program.platform.forms, {.name = L"frmDynamic",
                                    .caption = L"Dynamic Variables",
                                    .clientSize = {6180, 3630},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 2,
                                    .isCentred = true}),
      program_(program) {
  lstDynamic.OnDoubleClick = [this] { lstDynamic_DblClick(); };
  cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  cmdEdit.OnClick = [this] { EditSelectedVar(); };
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  cmdClear.OnClick = [this] { cmdClear_Click(); };
  cmdOK.OnClick = [this] { Unload(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
}

void frmDynamic::RefreshDynamicList() {
  std::vector<ListEntry> entries;
  for (const CustVar& variable : program_.DynamicVars)
    entries.push_back({.text = variable.VarName() + L'=' + variable.VarValue()});
  const bool hasAny = !entries.empty();
  lstDynamic.SetEntries(std::move(entries), hasAny ? 0 : -1);
  cmdDelete.SetEnabled(hasAny);
  cmdEdit.SetEnabled(hasAny);
  cmdClear.SetEnabled(hasAny);
}

// Other handlers can change the variables during each question, so they are looked up again after it.
void frmDynamic::EditSelectedVar() {
  const auto name = SelectedName();
  if (!name) return;
  const std::wstring present = program_.DynamicVars.Item(*name)->VarValue();
  const std::wstring value = AskLine(program_.platform, L"Please enter a new value for " + *name, present);
  CustVar* variable = program_.DynamicVars.Item(*name);
  if (variable && !value.empty()) variable->VarValue(value);
  RefreshDynamicList();
}

void frmDynamic::lstDynamic_DblClick() {
  if (lstDynamic.Index() >= 0) EditSelectedVar();
}

void frmDynamic::cmdAdd_Click() {
  const std::wstring name =
      ToUpper(AskLine(program_.platform, L"Please enter the name of your new variable", L"Newvar"));
  if (name.empty()) return;
  const auto isTaken = [&] {
    if (!program_.DynamicVars.Item(name)) return false;
    ShowBox(program_.platform, BoxIcon::Warning, L"A dynamic variable named " + name + L" already exists.");
    return true;
  };
  if (isTaken()) return;
  const std::wstring value = AskLine(program_.platform, L"Please enter a value for " + name);
  if (!value.empty() && !isTaken()) program_.DynamicVars.Add(name, value, name);
  RefreshDynamicList();
}

void frmDynamic::cmdDelete_Click() {
  const auto name = SelectedName();
  if (!name || !Confirms(program_.platform, L"Do you really want to clear " + *name + L"?")) return;
  if (program_.DynamicVars.Item(*name)) program_.DynamicVars.Remove(*name);
  RefreshDynamicList();
}

void frmDynamic::cmdClear_Click() {
  if (!Confirms(program_.platform, L"Do you really want to clear all dynamic variables?")) return;
  program_.DynamicVars = CustVars();
  RefreshDynamicList();
}

// The name before the first "=" of the selected entry. Nothing if there is no variable of that name, as when
// a directive has removed it, or when "=" is part of the name.
std::optional<std::wstring> frmDynamic::SelectedName() const {
  if (lstDynamic.Index() < 0) return std::nullopt;
  const std::wstring& entry = lstDynamic.Text(lstDynamic.Index());
  std::wstring name = entry.substr(0, entry.find(L'='));
  if (!program_.DynamicVars.Item(name)) return std::nullopt;
  return name;
}

}  // namespace troth
