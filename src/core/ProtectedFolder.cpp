#include "core/ProtectedFolder.h"

#include "core/Program.h"
#include "platform/services/FileService.h"
#include "script/MessageBoxes.h"
#include "script/ProgramTitle.h"

namespace troth {

void ExplainProtectedFolder(Program& program) {
  if (program.FolderExplained) return;
  FileService& files = program.platform.files;
  const std::wstring folder = files.ProgramFolder();
  const std::wstring trial = folder + L"\\Trothline.tmp";
  if (files.Write(trial, "")) {
    files.Delete(trial);
    return;
  }
  program.FolderExplained = true;
  ShowBox(program.platform, BoxIcon::Warning,
          std::wstring(kProgramTitle) + L" may not write to its folder:\n" + folder +
              L"\n\nScripts, variables and screenshots are kept there, and cannot be saved. Please install " +
              kProgramTitle +
              L" for yourself only, or move the folder to one of your own, such as Documents.");
}

}  // namespace troth
