#include "script/ScriptLine.h"

#include <gtest/gtest.h>

#include <string>

namespace troth {
namespace {

TEST(ParseScriptLine, TakesADelayPrefixOnlyIfItIsWhole) {
  const struct {
    std::wstring line;
    std::int32_t delayMs;
    std::wstring text;
  } cases[] = {
      {L"   hello   ", 0, L"hello"},
      {L"\thello\t", 0, L"\thello\t"},
      {L"$3000$, hello", 3000, L"hello"},
      {L"  $3000$  ,   hello  ", 3000, L"hello"},
      {L"$ 3000$,hello", 3000, L"hello"},
      {L"$50000$,hello", 30000, L"hello"},
      {L"$-5$,hello", 0, L"hello"},
      {L"$2500.5$,hello", 2500, L"hello"},
      {L"$2501.5$,hello", 2502, L"hello"},
      {L"$$,text", 0, L"text"},
      {L"$3000$,$4000$,hello", 3000, L"$4000$,hello"},
      {L"$", 0, L"$"},
      {L"$$", 0, L"$$"},
      {L"$3000$", 0, L"$3000$"},
      {L"$3000$ hello", 0, L"$3000$ hello"},
      {L"$3000$ $,hello", 0, L"$3000$ $,hello"},
      {L"hello $3000$, there", 0, L"hello $3000$, there"},
  };
  for (const auto& c : cases) {
    const auto parsed = ParseScriptLine(c.line);
    ASSERT_TRUE(parsed) << testing::PrintToString(c.line);
    EXPECT_EQ(parsed->delayMs, c.delayMs) << testing::PrintToString(c.line);
    EXPECT_EQ(parsed->text, c.text);
  }
}

TEST(ParseScriptLine, GivesNothingForALineWithoutText) {
  for (const std::wstring line : {L"", L"    ", L"$3000$,", L"$3000$,   ", L"  $$ , "}) {
    EXPECT_FALSE(ParseScriptLine(line)) << testing::PrintToString(line);
  }
}

TEST(ParseScriptLine, KnowsCommentsAndChaptersByTheFirstCharacters) {
  constexpr auto kNone = L"";
  const struct {
    std::wstring line;
    bool isComment;
    std::wstring title;
  } cases[] = {
      {L"@note", true, kNone},     {L"&popup", true, kNone},       {L"@", true, kNone},
      {L"@{T1}", true, kNone},     {L"@!Vows", true, L"Vows"},     {L"@!ab", true, L"ab"},
      {L"@!a", true, kNone},       {L"@!", true, kNone},           {L"@ !Vows", true, kNone},
      {L"&!Vows", true, kNone},    {L"@!  Vows", true, L"  Vows"}, {L"$9$,@!Vows", true, L"Vows"},
      {L"@! ab ", true, L" ab"},   {L"/party", false, kNone},      {L"~bare", false, kNone},
      {L": emotes", false, kNone}, {L"!@shout", false, kNone},     {L"\t@note", false, kNone},
  };
  for (const auto& c : cases) {
    const auto parsed = ParseScriptLine(c.line);
    ASSERT_TRUE(parsed) << testing::PrintToString(c.line);
    EXPECT_EQ(parsed->isComment, c.isComment) << testing::PrintToString(c.line);
    EXPECT_EQ(parsed->chapterTitle.value_or(kNone), c.title) << testing::PrintToString(c.line);
  }
}

}  // namespace
}  // namespace troth
