#include "script/UnicodeTable.h"

#include <cstddef>

#include "platform/services/TextService.h"
#include "script/LineReader.h"
#include "script/Text.h"

namespace troth {
namespace {

// The code with which the character is posted: for one that the page lacks, that of a look-alike or of "?".
// Nothing for a character of two bytes.
std::optional<std::size_t> CodeOf(wchar_t character, const TextService& page) {
  const std::string bytes = page.Encode(std::wstring_view(&character, 1));
  if (bytes.size() != 1) return std::nullopt;
  return static_cast<unsigned char>(bytes[0]);
}

}  // namespace

void UnicodeTable::LoadFrom(std::string_view bytes, const TextService& page) {
  entries_ = {};
  const std::wstring text = page.Decode(bytes);
  LineReader lines{std::wstring_view(text)};
  while (const auto line = lines.Next()) {
    const auto rule = TrimBlanks(*line);
    if (rule.size() <= 2) continue;
    if (const auto code = CodeOf(rule[0], page)) entries_[*code] = rule.substr(2);
  }
}

std::wstring UnicodeTable::Translate(std::wstring_view text, const TextService& page) const {
  std::wstring result;
  for (const wchar_t character : text) {
    const auto code = CodeOf(character, page);
    if (code && entries_[*code])
      result += *entries_[*code];
    else
      result += character;
  }
  return result;
}

}  // namespace troth
