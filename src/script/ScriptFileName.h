// The names of script files: their extension, the folders in which they lie, and what is shown of a name.
// Used by the loader, by saving and by the windows that list scripts. Touches no file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace troth {

class FileService;

inline constexpr wchar_t kScriptExtension[] = L".txt";

// The folder of all scripts, and the one in it that holds those of the user. Without a trailing separator.
std::wstring ScriptFolder(const FileService& files);
std::wstring MyScriptsFolder(const FileService& files);

// The file's name up to the first extension in it, in any case of letters; nothing if it has none. `path` may
// be a bare name.
std::optional<std::wstring> LanguageOf(std::wstring_view path);

// The name with the extension, which is added if the name holds none.
std::wstring WithScriptExtension(std::wstring name);

}  // namespace troth
