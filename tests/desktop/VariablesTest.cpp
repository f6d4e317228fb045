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
};

TEST_F(VariablesTest, DialogOfUserVariablesWorksByKeysAloneAndItsFileOutlivesTheRun) {
  const ProgramFile file(L"Vars.txt", "ring=gold\r\nhall=moss\r\n");
  UseScript("#note# in #hall#\r\n");
  {
    Troth troth;
    AWAIT_EQ(L"#note# in moss", troth.Text(L"txtNext"));
    troth.Choose(L"MOptionsDefine");
    const HWND form = troth.AwaitForm(L"frmVars");
    const RealHands hands(form);
    const ForeignList list(troth.Running(), FindNamed(form, L"lstVars"));
    const auto value = [&] { return TextOf(FindNamed(form, L"txtVal")); };
    EXPECT_EQ(list.Rows(), L"*groom;bride;ring;hall;");
    ExpectTabStops(form, {L"lstVars", L"cmdNew", L"cmdOK", L"cdmHelp"});
    hands.Press('A', kWithAlt);
    troth.AnswerQuestion(L"Enter a name for the new variable", "GROOM");
    troth.AnswerBox(L"Error: variable already defined");
    hands.Press('A', kWithAlt);
    troth.AnswerQuestion(L"Enter a name for the new variable", "note");
    AWAIT_EQ(L"groom;bride;ring;hall;*note;", list.Rows());
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
    AWAIT_EQ(L"groom;bride;hall;note;", list.Rows());
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
  const ForeignList list(troth.Running(), FindNamed(form, L"lstDynamic"));
  const auto add = [&](const char* name, const wchar_t* upper, const char* value) {
    hands.Press('A', kWithAlt);
    troth.AnswerQuestion(L"Please enter the name of your new variable", name);
    troth.AnswerQuestion(L"Please enter a value for " + std::wstring(upper), value);
  };
  ExpectTabStops(form, {L"lstDynamic", L"cmdAdd", L"cmdOK", L"cdmHelp"});
  add("ring", L"RING", "gold");
  add("ale", L"ALE", "dark");
  AWAIT_EQ(L"*ALE=dark;RING=gold;", list.Rows());
  hands.Press('V', kWithAlt);
  hands.Press(VK_DOWN);
  AWAIT_EQ(L"ALE=dark;*RING=gold;", list.Rows());
  ExpectTabStops(form,
                 {L"lstDynamic", L"cmdAdd", L"cmdEdit", L"cmdDelete", L"cmdClear", L"cmdOK", L"cdmHelp"});
  hands.Press('E', kWithAlt);
  troth.AnswerQuestion(L"Please enter a new value for RING", "oak");
  AWAIT_EQ(L"*ALE=dark;RING=oak;", list.Rows());
  hands.Press('A', kWithAlt);
  troth.AnswerQuestion(L"Please enter the name of your new variable", "Ale");
  troth.AnswerBox(L"A dynamic variable named ALE already exists.");
  hands.Press('D', kWithAlt);
  troth.AnswerBox(L"Do you really want to clear ALE?");
  AWAIT_EQ(L"*RING=oak;", list.Rows());
  hands.Press(VK_ESCAPE);
  AWAIT(!IsWindow(form));
  EXPECT_EQ(troth.Text(L"txtNext"), L"#ring#") << "the sentence that stands ready stays";
  troth.Hands().Press('Y', kWithAlt);
  AWAIT_EQ(L"! oak", troth.Text(L"txtNext"));
}

}  // namespace
}  // namespace troth::desktop
