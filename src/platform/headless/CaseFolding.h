// How the headless services compare names: without regard to case.
#pragma once

#include <cwctype>
#include <string>

namespace troth {

inline std::wstring CaseFolded(std::wstring text) {
  for (wchar_t& c : text) c = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
  return text;
}

}  // namespace troth
