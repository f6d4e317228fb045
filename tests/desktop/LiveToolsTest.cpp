// The windows beside a ceremony: popups over the game, and the list of paragraphs.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class LiveToolsTest : public DesktopTest {
 protected:
  static void MoveTo(HWND window, POINT corner) {
    SetWindowPos(window, nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    AWAIT(std::abs(CornerOf(window).x - corner.x) <= 40);
  }
  static bool LiesAbove(HWND upper, HWND lower) {
    for (HWND window = GetTopWindow(nullptr); window; window = GetWindow(window, GW_HWNDNEXT))
      if (window == upper || window == lower) return window == upper;
    return false;
  }
};

TEST_F(LiveToolsTest, PopupLiesOverTheGameWhereItWasLastDraggedAndGoesByAnyOfItsKeys) {
  UseScript("one\r\n&Mind the step & \"bow\"\r\ntwo\r\n@{def ring}\r\nthree\r\n& three\r\nfour\r\n");
  Game game({L"--position", L"40,40", L"--size", L"900x700"});
  Troth troth;
  for (const wchar_t* item : {L"MOptionsTop", L"MOptionsAuto"}) troth.SetChecked(item, false);
  constexpr struct {
    const wchar_t* text;
    int key;
    int row;
  } kPopups[] = {{L"Mind the step & \"bow\"", VK_RETURN, 2},
                 {L"Syntax error in !def command: {def ring}", VK_ESCAPE, 4},
                 {L" three", VK_SPACE, 6}};
  POINT place{0, 0};
  for (const auto& each : kPopups) {
    SCOPED_TRACE(each.row);
    troth.Speak();
    const HWND popup = troth.AwaitForm(L"frmPopup");
    EXPECT_EQ(TextOf(FindNamed(popup, L"lblMsg")), each.text);
    AWAIT(IsTopMost(popup));
    AWAIT(LiesAbove(popup, game.Window()));
    AWAIT_EQ(L"Command1", NameOf(FocusOf(popup)));
    ExpectNear(popup, place);
    place = {place.x + 160, place.y + 120};
    MoveTo(popup, place);
    RealHands(popup).Press(each.key);
    AWAIT(!IsWindow(popup));
    AWAIT_EQ(each.row, troth.List().Index());
  }
  EXPECT_EQ(game.HeardToTheEnd().bytes, "one\rtwo\rthree\r");
}

TEST_F(LiveToolsTest, ListOfParagraphsJumpsAndKeepsItsPlaceAndWhetherItIsSeen) {
  UseScript("before\r\n@!Welcome\r\nhello\r\n@!Rings\r\nthe ring\r\n");
  StoreSetting(L"Options", L"Index X Position", L"6000");
  StoreSetting(L"Options", L"Index Y Position", L"6000");
  constexpr POINT kMoved{600, 300};
  {
    Troth troth;
    const HWND form = troth.AwaitForm(L"frmIndex");
    ExpectNear(form, {400, 400});
    const ForeignList list(troth.Running(), FindNamed(form, L"lstIndex"));
    AWAIT_EQ(2, list.Count());
    EXPECT_EQ(list.Text(1), L"Rings");
    RealHands(form).Click(list.LabelOf(1), 2);
    AWAIT_EQ(3, troth.List().Index());
    EXPECT_EQ(troth.Text(L"txtNext"), L"");
    RealHands(form).Press(VK_UP);
    AWAIT_EQ(0, list.Index());
    EXPECT_EQ(troth.List().Index(), 3) << "a look at another paragraph jumps nowhere";
    RealHands(form).Press('G', kWithAlt);
    AWAIT_EQ(1, troth.List().Index());
    PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0);
    AWAIT(!IsWindowVisible(form));
    EXPECT_TRUE(troth.Quit());
    EXPECT_EQ(StoredSetting(L"Options", L"Index Visible"), L"0");
  }
  {
    Troth troth;
    troth.Window();
    EXPECT_EQ(troth.Running().FindForm(L"frmIndex"), nullptr);
    troth.Choose(L"MViewIndex");
    MoveTo(troth.AwaitForm(L"frmIndex"), kMoved);
    Sleep(800);  // it notes its place every half second, which nobody can see
    EXPECT_TRUE(troth.Quit());
  }
  Troth troth;
  ExpectNear(troth.AwaitForm(L"frmIndex"), kMoved);
}

}  // namespace
}  // namespace troth::desktop
