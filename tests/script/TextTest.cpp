#include "script/Text.h"

#include <gtest/gtest.h>

#include <limits>

#include "script/LineReader.h"
#include "script/NumberReader.h"

namespace troth {
namespace {

TEST(TrimBlanks, TakesBlanksAndNothingElse) {
  struct {
    std::wstring_view text;
    std::wstring_view trimmed;
  } const cases[] = {
      {L"", L""},           {L"   ", L""},
      {L"  a b  ", L"a b"}, {L" \t a \t ", L"\t a \t"},
      {L" \n ", L"\n"},     {L"\u00A0a\u00A0", L"\u00A0a\u00A0"},
  };
  for (const auto& c : cases) EXPECT_EQ(TrimBlanks(c.text), c.trimmed) << testing::PrintToString(c.text);
}

TEST(ToUpper, KnowsTheAlphabetsOfTheCodePagesAndLeavesTheRest) {
  EXPECT_EQ(ToUpper(L"vows.txt 1z{`"), L"VOWS.TXT 1Z{`");
  EXPECT_EQ(ToUpper(L"\u00E0\u00F6\u00F7\u00F8\u00FE\u00FF\u00DF\u0131"),
            L"\u00C0\u00D6\u00F7\u00D8\u00DE\u0178\u00DF\u0131");
  EXPECT_EQ(ToUpper(L"\u0153\u0161\u017E\u0142\u0100\u0111\u01A1\u01B0"),
            L"\u0152\u0160\u017D\u0141\u0100\u0110\u01A0\u01AF");
  EXPECT_EQ(ToUpper(L"\u03B1\u03C2\u03CE"), L"\u0391\u03A3\u038F");
  EXPECT_EQ(ToUpper(L"\u0430\u044F\u0451\u0491"), L"\u0410\u042F\u0401\u0490");
}

TEST(EqualsNoCase, ComparesWholeTexts) {
  EXPECT_TRUE(EqualsNoCase(L"Groom", L"gROOM"));
  EXPECT_TRUE(EqualsNoCase(L"Ren\u00E9e", L"REN\u00C9E"));
  EXPECT_FALSE(EqualsNoCase(L"groom", L"grooms"));
  EXPECT_FALSE(EqualsNoCase(L"grooms", L"groom"));
}

TEST(ReadNumber, ReadsTheLeadingNumberAndRoundsHalvesToEven) {
  constexpr auto kHighest = std::numeric_limits<std::int32_t>::max();
  constexpr auto kLowest = std::numeric_limits<std::int32_t>::min();
  const std::wstring manyNines(10000, L'9');
  const std::wstring manyZeros(10000, L'0');
  const struct {
    std::wstring text;
    std::int32_t number;
  } cases[] = {
      {L"", 0},
      {L"abc", 0},
      {L"-", 0},
      {L"3000", 3000},
      {L"  3000", 3000},
      {L"\t3000", 0},
      {L"+7", 7},
      {L"-5", -5},
      {L"--5", 0},
      {L"1.2.9", 1},
      {L"0.5", 0},
      {L"1.5", 2},
      {L"2.5", 2},
      {L"2.500001", 3},
      {L"2.49999", 2},
      {L".6", 1},
      {L"7.", 7},
      {L"-2.5", -2},
      {L"-3.5", -4},
      {L"2147483647", kHighest},
      {L"2147483648", kHighest},
      {L"-2147483648", kLowest},
      {L"-2147483649", kLowest},
      {manyNines, kHighest},
      {L"-" + manyNines, kLowest},
      {L"4.5" + manyZeros + L"1", 5},
  };
  for (const auto& c : cases) EXPECT_EQ(ReadNumber(c.text), c.number) << testing::PrintToString(c.text);
}

template <class Char>
std::vector<std::basic_string<Char>> LinesOf(std::basic_string_view<Char> text) {
  std::vector<std::basic_string<Char>> lines;
  LineReader reader(text);
  while (const auto line = reader.Next()) lines.emplace_back(*line);
  return lines;
}

TEST(LineReader, EndsALineAtCrOrCrLfOnly) {
  using Lines = std::vector<std::wstring>;
  const struct {
    std::wstring_view text;
    Lines lines;
  } cases[] = {
      {L"", {}},
      {L"a", {L"a"}},
      {L"a\r", {L"a"}},
      {L"a\rb\r\nc", {L"a", L"b", L"c"}},
      {L"a\nb\r\n", {L"a\nb"}},
      {L"a\r\n\nb", {L"a", L"\nb"}},
      {L"a\r\r\nb", {L"a", L"", L"b"}},
  };
  for (const auto& c : cases) EXPECT_EQ(LinesOf(c.text), c.lines) << testing::PrintToString(c.text);
}

TEST(LineReader, WalksRawBytesByTheSameRule) {
  const std::string bytes("\0a\r\xFF\n\r\n\x1A", 8);
  EXPECT_EQ(LinesOf(std::string_view(bytes)),
            (std::vector<std::string>{std::string("\0a", 2), "\xFF\n", "\x1A"}));
}

}  // namespace
}  // namespace troth
