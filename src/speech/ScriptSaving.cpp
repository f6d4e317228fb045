#include "speech/ScriptSaving.h"

#include "platform/services/DialogService.h"
#include "platform/services/FileService.h"
#include "script/FileName.h"
#include "script/ProgramTitle.h"
#include "script/ScriptWriter.h"
#include "script/Text.h"
#include "script/modScript.h"
#include "core/MainWindow.h"
#include "core/Program.h"

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

void ScriptSaving::MFileSaveas_Click() {
  const Platform& platform = program_.platform;
  WeddingScript& script = program_.ScriptNow;
  if (!modScript::AskForScript(script, platform)) return;
  const std::wstring name = AskForName();
  if (name.empty()) return;

  const std::wstring folder = platform.files.ProgramFolder() + L"\\wedscripts\\My Scripts";
  const std::wstring path = folder + L'\\' + name;
  // The name is looked at ahead of the question: a file elsewhere is none of ours to replace.
  const bool isName = IsFileName(name);
  if (isName) {
    platform.files.CreateFolder(folder);
    if (!MayReplace(path, name)) return;
  }
  if (!isName || !platform.files.Write(path, ScriptBytes(*script.Rows(), platform.text))) {
    platform.dialogs.ShowMessage(
        {.text = L"Error: cannot create " + name, .title = kProgramTitle, .icon = BoxIcon::Stop});
    return;
  }
  script.Dirty(false);
  script.sFileName(path);
  window_.txtFile.SetText(name);
}

std::wstring ScriptSaving::AskForName() {
  const auto answer = program_.platform.dialogs.AskText(
      {.prompt = L"Please select a new name for your script. The new script will be saved in the 'My "
                 L"Scripts' subdirectory",
       .title = kProgramTitle});
  std::wstring name(TrimBlanks(answer.value_or(L"")));
  if (!name.empty() && ToUpper(name).find(L".TXT") == std::wstring::npos) name += L".txt";
  return name;
}

bool ScriptSaving::MayReplace(const std::wstring& path, const std::wstring& name) {
  if (!program_.platform.files.Exists(path)) return true;
  return program_.platform.dialogs.ShowMessage(
             {.text = name + L" already exists in the destination directory. Do you want to overwrite it?",
              .title = kProgramTitle,
              .icon = BoxIcon::Question,
              .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

}  // namespace troth
