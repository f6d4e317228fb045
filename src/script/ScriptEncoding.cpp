#include "script/ScriptEncoding.h"

#include <cstdint>
#include <utility>

#include "platform/services/TextService.h"

namespace troth {

namespace {

constexpr std::string_view kSignature = "\xEF\xBB\xBF";

bool IsAscii(std::string_view bytes) {
  for (const char byte : bytes)
    if (static_cast<unsigned char>(byte) >= 0x80) return false;
  return true;
}

void Append(std::wstring& text, char32_t character) {
  // A wide character of Windows has 16 bits.
  if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
    text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
    character = 0xDC00 + ((character - 0x10000) & 0x3FF);
  }
  text += static_cast<wchar_t>(character);
}

// The character at the beginning of the bytes, which it takes off; nothing if they are no UTF-8. Longer forms
// than needed, halves of a pair and numbers without a character are none.
std::optional<char32_t> TakeCharacter(std::string_view& bytes) {
  const auto lead = static_cast<unsigned char>(bytes.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || bytes.size() < length) return std::nullopt;
  char32_t character = length == 1 ? lead : lead & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    character = character << 6 | (byte & 0x3Fu);
  }
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isHalf = character >= 0xD800 && character <= 0xDFFF;
  if (character < kSmallest[length] || isHalf || character > 0x10FFFF) return std::nullopt;
  bytes.remove_prefix(length);
  return character;
}

std::optional<std::wstring> DecodeUtf8(std::string_view bytes) {
  std::wstring text;
  while (!bytes.empty()) {
    const auto character = TakeCharacter(bytes);
    if (!character) return std::nullopt;
    Append(text, *character);
  }
  return text;
}

// A file with a CR anywhere ends its lines as the loader reads them; a lone LF in it is a character of its
// line.
bool EndsLinesInLineFeeds(std::string_view bytes) {
  return bytes.find('\n') != std::string_view::npos && bytes.find('\r') == std::string_view::npos;
}

// CR LF in place of each LF.
std::string WithWholeLineEnds(std::string_view bytes) {
  std::string whole;
  for (const char byte : bytes) {
    if (byte == '\n') whole += '\r';
    whole += byte;
  }
  return whole;
}

}  // namespace

std::optional<ScriptConversion> ConvertScript(std::string_view bytes, const TextService& text) {
  ScriptConversion conversion;
  const bool isSigned = bytes.starts_with(kSignature);
  const std::string_view letters = isSigned ? bytes.substr(kSignature.size()) : bytes;
  std::string inCodePage(letters);
  if (isSigned || !IsAscii(letters)) {
    if (const auto decoded = DecodeUtf8(letters)) {
      inCodePage = text.Encode(*decoded);
      conversion.wasUtf8 = true;
      conversion.losesLetters = text.Decode(inCodePage) != *decoded;
    }
  }
  conversion.hadBareLineFeeds = EndsLinesInLineFeeds(inCodePage);
  conversion.bytes = conversion.hadBareLineFeeds ? WithWholeLineEnds(inCodePage) : std::move(inCodePage);
  if (!conversion.wasUtf8 && !conversion.hadBareLineFeeds) return std::nullopt;
  return conversion;
}

}  // namespace troth
