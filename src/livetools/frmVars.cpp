#include "livetools/frmVars.h"

#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "core/modMain.h"
#include "script/MessageBoxes.h"
#include "script/Text.h"
#include "script/UserVarsFile.h"

namespace troth {

namespace {
// Groom and bride come first; they are the main window's.
constexpr int kBuiltIn = 2;
}  // namespace

frmVars::frmVars(Program& program)
    : Form(program.platform.forms, {.name = L"frmVars",
                                    .caption = L"Custom Variables",
                                    .clientSize = {6540, 3510},
                                    .border = BorderStyle::FixedDialog,
                                    .helpContext = 2,
                                    .isCentred = true,
                                    .hasCloseBox = false}),
      program_(program) {
  lstVars.OnClick = [this] { lstVars_Click(); };
  txtVal.OnChange = [this] { txtVal_Change(); };
  cmdNew.OnClick = [this] { cmdNew_Click(); };
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cdmHelp.OnClick = [this] { modMain::ShowHelp(program_, *this); };
}

void frmVars::Form_Load() {
  std::vector<ListEntry> names;
  for (const CustVar& variable : program_.UserVars) names.push_back({.text = variable.VarName()});
  lstVars.SetEntries(std::move(names), 0);
}

void frmVars::lstVars_Click() {
  const CustVar* variable = Selected();
  txtVal.SetText(variable ? variable->VarValue() : std::wstring());
  const bool isOwn = lstVars.Index() >= kBuiltIn;
  txtVal.SetEnabled(isOwn);
  cmdDelete.SetEnabled(isOwn);
}

void frmVars::txtVal_Change() {
  if (CustVar* variable = Selected()) variable->VarValue(std::wstring(TrimBlanks(txtVal.Text())));
}

void frmVars::cmdNew_Click() {
  const std::wstring name = AskLine(program_.platform, L"Enter a name for the new variable");
  if (name.empty()) return;
  if (program_.UserVars.Item(name)) {
    ShowBox(program_.platform, BoxIcon::Information, L"Error: variable already defined");
    return;
  }
  program_.UserVars.Add(name, L"", name);
  lstVars.Append(name);
  lstVars.SetIndex(lstVars.Count() - 1);
  txtVal.SetFocus();
}

void frmVars::cmdDelete_Click() {
  const int index = lstVars.Index();
  program_.UserVars.Remove(index + 1);
  lstVars.Remove(index);
}

void frmVars::cmdOK_Click() {
  if (!modScript::SaveUserVars(program_.UserVars, program_.platform)) ExplainProtectedFolder(program_);
  Unload();
}

// The list shows the variables in their own order.
CustVar* frmVars::Selected() const {
  return lstVars.Index() < 0 ? nullptr : program_.UserVars.Item(lstVars.Index() + 1);
}

}  // namespace troth
