#include "speech/ScriptSaving.h"

#include <utility>

#include "core/MainWindow.h"
#include "core/Program.h"
#include "core/ProtectedFolder.h"
#include "platform/services/FileService.h"
#include "script/FileName.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"
#include "script/ScriptFileName.h"
#include "script/ScriptWriter.h"
#include "script/modScript.h"

namespace troth {

bool ScriptSaving::MayGoOn() {
  if (!program_.ScriptNow.Dirty()) return true;
  const BoxAnswer answer = program_.platform.dialogs.ShowMessage(
      {.text =
           L"Your currently loaded script has been modified while in learning mode. Do you want to save it?",
       .title = kProgramTitle,
       .icon = BoxIcon::Question,
       .buttons = BoxButtons::YesNoCancel});
  if (answer == BoxAnswer::Yes) MFileSaveas_Click();
  return answer != BoxAnswer::Cancel;
}

std::wstring ScriptSaving::WhyToWait() const {
  return program_.ScriptNow.Dirty() ? L"The pauses that Trothline has learned have not been saved."
                                    : std::wstring();
}

void ScriptSaving::MFileSaveas_Click() {
  const Platform& platform = program_.platform;
  WeddingScript& script = program_.ScriptNow;
  if (!modScript::AskForScript(script, platform)) return;
  const std::wstring name = AskForName();
  if (name.empty()) return;

  const std::wstring folder = MyScriptsFolder(platform.files);
  const std::wstring path = folder + L'\\' + name;
  // The name is checked before the question: a file in another folder must not be replaced.
  const bool isName = IsFileName(name);
  if (isName) {
    platform.files.CreateFolder(folder);
    if (!MayReplace(path, name)) return;
  }
  if (!isName || !platform.files.Write(path, ScriptBytes(*script.Rows(), platform.text))) {
    ShowBox(platform, BoxIcon::Stop, L"Error: cannot create " + name);
    ExplainProtectedFolder(program_);
    return;
  }
  script.Dirty(false);
  script.sFileName(path);
  window_.txtFile.SetText(name);
}

std::wstring ScriptSaving::AskForName() {
  std::wstring name = AskLine(program_.platform,
                              L"Please select a new name for your script. The new script will be saved in "
                              L"the 'My Scripts' subdirectory");
  return name.empty() ? name : WithScriptExtension(std::move(name));
}

bool ScriptSaving::MayReplace(const std::wstring& path, const std::wstring& name) {
  return !program_.platform.files.Exists(path) ||
         Confirms(program_.platform,
                  name + L" already exists in the destination directory. Do you want to overwrite it?");
}

}  // namespace troth
