#include "script/ScriptFileName.h"

#include "platform/services/FileService.h"
#include "script/Text.h"

namespace troth {

namespace {

std::size_t FindExtension(std::wstring_view name) { return ToUpper(name).find(ToUpper(kScriptExtension)); }

}  // namespace

std::wstring ScriptFolder(const FileService& files) { return files.ProgramFolder() + L"\\wedscripts"; }

std::wstring MyScriptsFolder(const FileService& files) { return ScriptFolder(files) + L"\\My Scripts"; }

std::optional<std::wstring> LanguageOf(std::wstring_view path) {
  const std::wstring_view name = path.substr(path.find_last_of(L"\\/") + 1);
  const std::size_t extension = FindExtension(name);
  if (extension == std::wstring_view::npos) return std::nullopt;
  return std::wstring(name.substr(0, extension));
}

std::wstring WithScriptExtension(std::wstring name) {
  if (FindExtension(name) == std::wstring::npos) name += kScriptExtension;
  return name;
}

}  // namespace troth
