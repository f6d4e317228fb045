// Variables on their way from files, boxes, dialogs and directives into what the game hears.
#include <gtest/gtest.h>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class VariablesTest : public DesktopTest {
 protected:
  // Presses Tab once for each name and ends up where it began.
  static void ExpectTabStops(HWND form, const std::vector<std::wstring>& names) {
    for (std::size_t stop = 0; stop <= names.size(); ++stop) {
      AWAIT_EQ(names[stop % names.size()], NameOf(FocusOf(form)));
      if (stop < names.size()) RealHands(form).Press(VK_TAB);
    }
  }
  static void AnswerQuestion(const Troth& troth, const std::wstring& prompt, const std::string& answer) {
    HWND question = nullptr;
    AWAIT_EQ(prompt, (question = troth.Running().FindForm(L"InputBox"))
                         ? TextOf(FindNamed(question, L"lblPrompt"))
                         : L"no question");
    RealHands(question).Type(answer);
    AWAIT_EQ(std::wstring(answer.begin(), answer.end()), TextOf(FindNamed(question, L"txtAnswer")));
    RealHands(question).Press(VK_RETURN);
    AWAIT(!IsWindowVisible(question));
  }
  static void AnswerBox(const Troth& troth, const std::wstring& text) {
    const Box box = troth.AwaitBox();
    EXPECT_EQ(box.title, L"Trothline");
    EXPECT_EQ(box.text, text);
    RealHands(box.window).Press(VK_RETURN);
    AWAIT(!IsWindow(box.window));
  }
  // What the list shows, with "*" before the selected entry.
  static std::wstring Entries(const Troth& troth, HWND form, const wchar_t* name) {
    const ForeignList list(troth.Running(), FindNamed(form, name));
    std::wstring entries;
    for (int i = 0; i < list.Count(); ++i) entries += (i == list.Index() ? L"*" : L"") + list.Text(i) + L";";
    return entries;
  }
};

TEST_F(VariablesTest, StandInTheVeryCharactersThatTheGameHears) {
  const ProgramFile file(L"Vars.txt", "ring = gold\r\n");
  UseScript(
      "#groom# gives #RING#\r\n@{def hall, moss}\r\nin #hall# # ring #\r\n@{undef "
      "hall}\r\n#hall#\r\nend\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.Hands().Press('G', kWithAlt);
  AWAIT_EQ(L"txtGroom", troth.Focus());
  troth.Hands().Type(" Bram ");
  AWAIT_EQ(L" Bram ", troth.Text(L"txtGroom"));
  EXPECT_EQ(troth.Text(L"txtNext"), L" gives gold") << "the name counts when its box is left";
  troth.Hands().Press(VK_TAB);
  AWAIT_EQ(L"Bram gives gold", troth.Text(L"txtNext"));
  for (const int row : {2, 4, 5}) {
    troth.Speak();
    AWAIT_EQ(row, troth.List().Index());
  }
  EXPECT_EQ(game.HeardToTheEnd().bytes, "Bram gives gold\rin moss #ring#\r#hall#\r");
}

TEST_F(VariablesTest, FaultyLinesAreToldOfAtTheStart) {
  const ProgramFile file(L"Vars.txt", "a=1\r\nb=x#y\r\n; no comment\r\nA = 2\r\n");
  UseScript("#a##b#\r\n");
  Troth troth;
  for (const wchar_t* text :
       {L"Error: the 'b' variables contains  the '#' character.\nThe variable won't be added to the list.",
        L"Warning! Duplicate definition overrides variable A",
        L"Some errors were detected while loading custom variables. Please check your VARS.TXT file"})
    AnswerBox(troth, text);
  EXPECT_EQ(troth.Text(L"txtNext"), L"2#b#");
}

TEST_F(VariablesTest, DialogOfUserVariablesWorksByKeysAloneAndItsFileOutlivesTheRun) {
  const ProgramFile file(L"Vars.txt", "ring=gold\r\nhall=moss\r\n");
  UseScript("#note# in #hall#\r\n");
  {
    Troth troth;
    AWAIT_EQ(L"#note# in moss", troth.Text(L"txtNext"));
    troth.Choose(L"MOptionsDefine");
    const HWND form = troth.AwaitForm(L"frmVars");
    const RealHands hands(form);
    const auto list = [&] { return Entries(troth, form, L"lstVars"); };
    const auto value = [&] { return TextOf(FindNamed(form, L"txtVal")); };
    EXPECT_EQ(list(), L"*groom;bride;ring;hall;");
    ExpectTabStops(form, {L"lstVars", L"cmdNew", L"cmdOK", L"cdmHelp"});
    hands.Press('A', kWithAlt);
    AnswerQuestion(troth, L"Enter a name for the new variable", "GROOM");
    AnswerBox(troth, L"Error: variable already defined");
    hands.Press('A', kWithAlt);
    AnswerQuestion(troth, L"Enter a name for the new variable", "note");
    AWAIT_EQ(L"groom;bride;ring;hall;*note;", list());
    AWAIT_EQ(L"txtVal", NameOf(FocusOf(form)));
    hands.Type("5=five");
    AWAIT_EQ(L"5=five", value());
    hands.Press('V', kWithAlt);
    AWAIT_EQ(L"lstVars", NameOf(FocusOf(form)));
    for (const wchar_t* shown : {L"moss", L"gold"}) {
      hands.Press(VK_UP);
      AWAIT_EQ(shown, value());
    }
    ExpectTabStops(form, {L"lstVars", L"txtVal", L"cmdNew", L"cmdDelete", L"cmdOK", L"cdmHelp"});
    hands.Press('D', kWithAlt);
    AWAIT_EQ(L"groom;bride;hall;note;", list());
    hands.Press(VK_ESCAPE);
    hands.Press(VK_F4, kWithAlt);
    hands.Press(VK_RETURN);
    AWAIT(!IsWindow(form));
    EXPECT_EQ(file.Bytes(), "hall=moss\r\nnote=5=five\r\n");
    AWAIT_EQ(L"5=five in moss", troth.Text(L"txtNext"));
    EXPECT_TRUE(troth.Quit());
  }
  Troth again;
  EXPECT_EQ(again.Text(L"txtNext"), L"5=five in moss");
}

TEST_F(VariablesTest, DialogOfDynamicVariablesWorksByKeysAlone) {
  UseScript("#ring#\r\n@ note\r\n");
  Troth troth;
  troth.Window();
  troth.Choose(L"MViewDynamic");
  const HWND form = troth.AwaitForm(L"frmDynamic");
  const RealHands hands(form);
  const auto awaitList = [&](const wchar_t* wanted) {
    AWAIT_EQ(wanted, Entries(troth, form, L"lstDynamic"));
  };
  const auto add = [&](const char* name, const wchar_t* upper, const char* value) {
    hands.Press('A', kWithAlt);
    AnswerQuestion(troth, L"Please enter the name of your new variable", name);
    AnswerQuestion(troth, L"Please enter a value for " + std::wstring(upper), value);
  };
  ExpectTabStops(form, {L"lstDynamic", L"cmdAdd", L"cmdOK", L"cdmHelp"});
  add("ring", L"RING", "gold");
  add("ale", L"ALE", "dark");
  awaitList(L"*ALE=dark;RING=gold;");
  hands.Press('V', kWithAlt);
  hands.Press(VK_DOWN);
  awaitList(L"ALE=dark;*RING=gold;");
  ExpectTabStops(form,
                 {L"lstDynamic", L"cmdAdd", L"cmdEdit", L"cmdDelete", L"cmdClear", L"cmdOK", L"cdmHelp"});
  hands.Press('E', kWithAlt);
  AnswerQuestion(troth, L"Please enter a new value for RING", "oak");
  awaitList(L"*ALE=dark;RING=oak;");
  hands.Press('A', kWithAlt);
  AnswerQuestion(troth, L"Please enter the name of your new variable", "Ale");
  AnswerBox(troth, L"A dynamic variable named ALE already exists.");
  hands.Press('D', kWithAlt);
  AnswerBox(troth, L"Do you really want to clear ALE?");
  awaitList(L"*RING=oak;");
  hands.Press(VK_ESCAPE);
  AWAIT(!IsWindow(form));
  EXPECT_EQ(troth.Text(L"txtNext"), L"#ring#") << "the sentence that stands ready stays";
  troth.Hands().Press('Y', kWithAlt);
  AWAIT_EQ(L"! oak", troth.Text(L"txtNext"));
}

}  // namespace
}  // namespace troth::desktop
