#include "platform/services/FileService.h"

#include <algorithm>

namespace troth {

bool FileService::HasUsableName(std::wstring_view path) {
  constexpr std::wstring_view kRefused = L"<>:\"/|?*";
  const std::wstring_view name = path.substr(path.find_last_of(L'\\') + 1);
  return !name.empty() && std::none_of(name.begin(), name.end(), [=](wchar_t character) {
    return character < L' ' || kRefused.find(character) != std::wstring_view::npos;
  });
}

std::wstring FileService::FolderOf(const std::wstring& path) {
  const std::size_t separator = path.find_last_of(L'\\');
  return separator == std::wstring::npos ? std::wstring() : path.substr(0, separator);
}

}  // namespace troth
