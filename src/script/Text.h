// Small operations on text that every reader of files and every collection key shares.
// None of them asks the locale, so a script reads the same on every machine.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace troth {

// The text without the blanks (32) at both ends. A tab or any other white space is an ordinary character.
std::wstring_view TrimBlanks(std::wstring_view text);

// The capital of a small letter of the Latin, Greek and Cyrillic alphabets, as far as 8-bit code pages hold
// them; any other character stays itself. Always one character for one, so that positions are kept.
wchar_t ToUpper(wchar_t character);
std::wstring ToUpper(std::wstring_view text);

bool EqualsNoCase(std::wstring_view left, std::wstring_view right);

// For hash tables whose keys compare without regard to case. A look-up takes any kind of text and makes no
// copy of it.
struct HashNoCase {
  using is_transparent = void;
  std::size_t operator()(std::wstring_view text) const;
};
struct EqualNoCase {
  using is_transparent = void;
  bool operator()(std::wstring_view left, std::wstring_view right) const { return EqualsNoCase(left, right); }
};

}  // namespace troth
