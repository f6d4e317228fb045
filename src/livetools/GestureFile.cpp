#include "livetools/GestureFile.h"

#include "platform/services/TextService.h"
#include "script/LineReader.h"
#include "script/Text.h"

namespace troth {

std::vector<std::wstring> ReadGestures(std::string_view bytes, const TextService& page) {
  std::vector<std::wstring> names;
  LineReader lines{bytes};
  while (names.size() < kGestures) {
    const auto line = lines.Next();
    if (!line) break;
    names.emplace_back(TrimBlanks(page.Decode(*line)));
  }
  return names;
}

}  // namespace troth
