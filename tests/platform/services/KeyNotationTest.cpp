#include "platform/services/KeyNotation.h"

#include <gtest/gtest.h>

#include "platform/forms/Control.h"

namespace troth {

// A failing test shows the strokes as "Shift+a", "#13" and the like.
void PrintTo(const KeyStroke& stroke, std::ostream* out) {
  if (stroke.shift & kShiftDown) *out << "Shift+";
  if (stroke.shift & kControlDown) *out << "Control+";
  if (stroke.shift & kAltDown) *out << "Alt+";
  if (stroke.keyCode)
    *out << '#' << stroke.keyCode;
  else
    *out << static_cast<char>(stroke.character);
}

namespace {

using Strokes = std::vector<KeyStroke>;

KeyStroke Char(wchar_t character, int shift = 0) { return {.character = character, .shift = shift}; }
KeyStroke Key(int keyCode, int shift = 0) { return {.keyCode = keyCode, .shift = shift}; }

TEST(KeyNotation, ReadsCharactersNamesCountsAndShifts) {
  const struct {
    const wchar_t* notation;
    Strokes strokes;
  } cases[] = {
      {L"", {}},
      {L"Hi!", {Char(L'H'), Char(L'i'), Char(L'!')}},
      {L"a~", {Char(L'a'), Key(13)}},
      {L"{ENTER}{enter}", {Key(13), Key(13)}},
      {L"{F1}{f12}{F16}", {Key(112), Key(123), Key(127)}},
      {L"{PGUP}{BS}{ESC}{TAB}", {Key(33), Key(8), Key(27), Key(9)}},
      {L"{LEFT 3}", {Key(37), Key(37), Key(37)}},
      {L"{x 2}y", {Char(L'x'), Char(L'x'), Char(L'y')}},
      {L"{x 0}", {}},
      {L"{+}{^}{%}{~}{(}{)}{{}{}}",
       {Char(L'+'), Char(L'^'), Char(L'%'), Char(L'~'), Char(L'('), Char(L')'), Char(L'{'), Char(L'}')}},
      {L"{} 2}", {Char(L'}'), Char(L'}')}},
      {L"+ab", {Char(L'a', kShiftDown), Char(L'b')}},
      {L"^%{DEL}", {Key(46, kControlDown | kAltDown)}},
      {L"+(ab)c", {Char(L'a', kShiftDown), Char(L'b', kShiftDown), Char(L'c')}},
      {L"^(a+b)", {Char(L'a', kControlDown), Char(L'b', kControlDown | kShiftDown)}},
      {L"(a)", {Char(L'a')}},
      {L"+~", {Key(13, kShiftDown)}},
  };
  for (const auto& c : cases) {
    const auto strokes = ParseKeyNotation(c.notation);
    ASSERT_TRUE(strokes) << testing::PrintToString(c.notation);
    EXPECT_EQ(*strokes, c.strokes) << testing::PrintToString(c.notation);
  }
}

TEST(KeyNotation, RefusesAMistakeAsAWhole) {
  for (const wchar_t* notation :
       {L"a{", L"{}", L"{NOSUCH}", L"{F0}", L"{F17}", L"{ENTER", L"}", L"a)", L"(a", L"((a))", L"+", L"a^",
        L"{LEFT x}", L"{LEFT -1}", L"{LEFT 1001}", L"{LEFT }", L"{LEFT 99999999999999999999}"})
    EXPECT_FALSE(ParseKeyNotation(notation)) << testing::PrintToString(notation);
}

}  // namespace
}  // namespace troth
