// Replacements for characters that a game client cannot take. Loaded once at start-up; asked for each
// sentence while the user wants it. Owns its texts and opens no file.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace troth {

class TextService;

// One entry for each code of the system's 8-bit page. A character that the page lacks has the entry of the
// code that is posted for it; a character of two bytes has none and stays as it is.
class UnicodeTable {
 public:
  // From the bytes of Unicode.ini, in place of what was there. A line, without blanks at its ends, is
  //
  //   the character, any one character as a separator, and the replacement: "%=per cent"
  //
  // There are neither sections nor comments nor escapes. A line of two characters or fewer says nothing; a
  // later line for the same character wins.
  void LoadFrom(std::string_view bytes, const TextService& page);

  std::wstring Translate(std::wstring_view text, const TextService& page) const;

 private:
  // None: the character stands for itself.
  std::array<std::optional<std::wstring>, 256> entries_;
};

}  // namespace troth
