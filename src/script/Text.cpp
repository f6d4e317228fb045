#include "script/Text.h"

#include <algorithm>

namespace troth {
namespace {

// Small letters `first`, `first` + `step`, ... up to `last`; the capital stands `back` places before.
struct SmallLetters {
  wchar_t first;
  wchar_t last;
  int step;
  int back;
};

constexpr SmallLetters kSmallLetters[] = {
    {0x00E0, 0x00F6, 1, 32},    // Western Latin, around the division sign
    {0x00F8, 0x00FE, 1, 32},    //
    {0x00FF, 0x00FF, 1, -121},  // y with diaeresis
    {0x0101, 0x012F, 2, 1},     // further Latin: capital and small letter side by side
    {0x0133, 0x0137, 2, 1},     //
    {0x013A, 0x0148, 2, 1},     //
    {0x014B, 0x0177, 2, 1},     //
    {0x017A, 0x017E, 2, 1},     //
    {0x0192, 0x0192, 1, 1},     // f with hook
    {0x01A1, 0x01A1, 1, 1},     // o and u with horn
    {0x01B0, 0x01B0, 1, 1},     //
    {0x03AC, 0x03AC, 1, 38},    // Greek, first the vowels with accent
    {0x03AD, 0x03AF, 1, 37},    //
    {0x03B1, 0x03C1, 1, 32},    //
    {0x03C2, 0x03C2, 1, 31},    // final sigma
    {0x03C3, 0x03CB, 1, 32},    //
    {0x03CC, 0x03CC, 1, 64},    //
    {0x03CD, 0x03CE, 1, 63},    //
    {0x0430, 0x044F, 1, 32},    // Cyrillic
    {0x0450, 0x045F, 1, 80},    //
    {0x0491, 0x0491, 1, 1},     //
};

}  // namespace

std::wstring_view TrimBlanks(std::wstring_view text) {
  const auto first = text.find_first_not_of(L' ');
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

wchar_t ToUpper(wchar_t character) {
  if (character < 0x80) {
    const bool isSmall = character >= L'a' && character <= L'z';
    return isSmall ? static_cast<wchar_t>(character - (L'a' - L'A')) : character;
  }
  for (const SmallLetters& letters : kSmallLetters) {
    if (character < letters.first) break;
    if (character > letters.last || (character - letters.first) % letters.step != 0) continue;
    return static_cast<wchar_t>(character - letters.back);
  }
  return character;
}

std::wstring ToUpper(std::wstring_view text) {
  std::wstring upper;
  upper.reserve(text.size());
  for (const wchar_t character : text) upper += ToUpper(character);
  return upper;
}

bool EqualsNoCase(std::wstring_view left, std::wstring_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](wchar_t a, wchar_t b) { return ToUpper(a) == ToUpper(b); });
}

std::size_t HashNoCase::operator()(std::wstring_view text) const {
  std::size_t hash = 0;
  for (const wchar_t character : text) hash = hash * 31 + static_cast<std::size_t>(ToUpper(character));
  return hash;
}

}  // namespace troth
