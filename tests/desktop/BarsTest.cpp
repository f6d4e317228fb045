// The bars of buttons beside a ceremony: what real clicks on them send, their menu, and that they come back.
#include <gtest/gtest.h>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class BarsTest : public DesktopTest {
 protected:
  static HWND Button(HWND bar, int index) {
    const HWND button = FindNamed(bar, L"MacroButton(" + std::to_wstring(index) + L")");
    if (!button) throw std::runtime_error("the bar has no such button");
    return button;
  }
  static HWND OpenMenu() { return FindWindowW(L"#32768", nullptr); }
};

TEST_F(BarsTest, ButtonsOfTheBarSpeakAndAreChangedByARightClick) {
  UseScript("one\r\n");
  Game game;
  {
    Troth troth;
    troth.SetChecked(L"MOptionsAuto", false);
    troth.Choose(L"MViewButtonBar");
    const HWND bar = troth.AwaitForm(L"frmButtonBar");
    RealHands(bar).ClickMiddle(Button(bar, 0));
    AWAIT_EQ(": smiles \r", game.HeardSoFar().bytes);

    RealHands(bar).RightClickMiddle(Button(bar, 3));
    AWAIT(OpenMenu());
    EXPECT_EQ(MenuState(bar, L"MConfigureLoadSingle") & kMenuEnabled, kMenuEnabled);
    RealHands(bar).Press('C');
    troth.AnswerQuestion(L"Please enter the new text for the selected button", "bravo");
    AWAIT_EQ(L"bravo", TextOf(Button(bar, 3)));
    RealHands(bar).ClickMiddle(Button(bar, 3));
    AWAIT_EQ(": smiles \rbravo \r", game.HeardSoFar().bytes);

    const SIZE column = SizeOf(bar);
    RealHands(bar).ClickMiddle(Button(bar, 10));
    AWAIT(SizeOf(bar).cx > 5 * column.cx);
    AWAIT_EQ(L"&Vertical", TextOf(Button(bar, 10)));
    EXPECT_TRUE(troth.Quit());
  }
  EXPECT_EQ(StoredSetting(L"Button Bar", L"Button 3"), L"bravo");
  EXPECT_EQ(StoredSetting(L"Button Bar", L"Visible"), L"-1");
  EXPECT_EQ(StoredSetting(L"Button Bar", L"Layout"), L"0");
  EXPECT_EQ(game.HeardToTheEnd().bytes, ": smiles \rbravo \r");
}

TEST_F(BarsTest, GesturesGoToTheClientThatHasThem) {
  const ProgramFile gestures(L"Gestures.ini", "bow\r\n curtsy \r\n");
  Game game({L"--class", L"Kestrel Moors Pale Light"});
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.Choose(L"MViewGestureBar");
  const HWND bar = troth.AwaitForm(L"frmGestures");
  RealHands(bar).ClickMiddle(Button(bar, 1));
  AWAIT_EQ("`curtsy\r", game.HeardSoFar().bytes);
  EXPECT_FALSE(IsWindowEnabled(Button(bar, 2)));
  PostMessageW(bar, WM_SYSCOMMAND, SC_CLOSE, 0);
  AWAIT(!IsWindow(bar));
  EXPECT_EQ(StoredSetting(L"Gesture Bar", L"Visible"), L"0");
}

TEST_F(BarsTest, BothComeBackInPlaceAtTheNextStart) {
  for (const wchar_t* bar : {L"Button Bar", L"Gesture Bar"}) StoreSetting(bar, L"Visible", L"-1");
  StoreSetting(L"Button Bar", L"X Position", L"9000");
  StoreSetting(L"Button Bar", L"Y Position", L"1500");
  StoreSetting(L"Gesture Bar", L"X Position", L"450");
  StoreSetting(L"Gesture Bar", L"Y Position", L"7500");
  {
    Troth troth;
    ExpectNear(troth.AwaitForm(L"frmButtonBar"), {600, 100});
    ExpectNear(troth.AwaitForm(L"frmGestures"), {30, 500});
    EXPECT_TRUE(troth.Quit());
  }
  for (const wchar_t* bar : {L"Button Bar", L"Gesture Bar"}) EXPECT_EQ(StoredSetting(bar, L"Visible"), L"-1");
}

}  // namespace
}  // namespace troth::desktop
