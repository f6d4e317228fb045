#include "platform/headless/HeadlessJournal.h"

#include <cstdio>

namespace troth {

std::string HeadlessJournal::Readable(std::wstring_view text) {
  std::string readable;
  for (const wchar_t c : text) {
    if (c >= 32 && c < 127) {
      readable += static_cast<char>(c);
    } else {
      char code[16];
      std::snprintf(code, sizeof code, "\\x%X", static_cast<unsigned>(c));
      readable += code;
    }
  }
  return readable;
}

}  // namespace troth
