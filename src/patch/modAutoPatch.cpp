#include "patch/modAutoPatch.h"

#include "core/Program.h"
#include "core/Settings.h"
#include "platform/Platform.h"
#include "platform/services/FileService.h"
#include "script/NumberReader.h"

namespace troth::modAutoPatch {

void ReadPatchSettings(Program& program) {
  const Platform& platform = program.platform;
  program.Patch = {.frequency = ReadWhole(platform, settings::PatchFrequency),
                   .connectionType = ReadWhole(platform, settings::PatchConnectionType),
                   .proxyName = ReadText(platform, settings::PatchProxyName),
                   .lastPatchDate = ReadReal(ReadText(platform, settings::LastPatchDate))};
}

void SwapInPatchProgram(FileService& files) {
  const std::wstring folder = files.ProgramFolder();
  const std::wstring waiting = folder + kWaitingPatchProgram;
  if (!files.Exists(waiting)) return;
  if (files.Copy(waiting, folder + kPatchProgram, IfExists::Replace) == CopyOutcome::Done)
    files.Delete(waiting);
}

void MakeFolderPath(FileService& files, const std::wstring& path) {
  auto end = path.find(L'\\');
  if (end == std::wstring::npos) return;
  while ((end = path.find(L'\\', end + 1)) != std::wstring::npos) files.CreateFolder(path.substr(0, end));
}

}  // namespace troth::modAutoPatch
