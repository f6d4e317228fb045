#include "script/FileName.h"

#include <algorithm>

#include "script/Text.h"

namespace troth {

namespace {

constexpr std::wstring_view kRefused = L"\\/:*?\"<>|";
constexpr std::wstring_view kDevices[] = {L"CON", L"PRN", L"AUX", L"NUL"};
constexpr std::wstring_view kNumberedDevices[] = {L"COM", L"LPT"};

// The system looks at what stands before the first dot.
bool IsDevice(std::wstring_view name) {
  const auto stem = TrimBlanks(name.substr(0, name.find(L'.')));
  const auto isStem = [stem](std::wstring_view device) { return EqualsNoCase(stem, device); };
  if (std::any_of(std::begin(kDevices), std::end(kDevices), isStem)) return true;
  if (stem.size() != 4 || stem[3] < L'1' || stem[3] > L'9') return false;
  return std::any_of(std::begin(kNumberedDevices), std::end(kNumberedDevices),
                     [stem](std::wstring_view device) { return EqualsNoCase(stem.substr(0, 3), device); });
}

}  // namespace

bool IsFileName(std::wstring_view name) {
  const bool hasRefused = std::any_of(name.begin(), name.end(), [](wchar_t character) {
    return character < L' ' || kRefused.find(character) != std::wstring_view::npos;
  });
  return !hasRefused && !IsDevice(name) && name.find_first_not_of(L". ") != std::wstring_view::npos;
}

}  // namespace troth
