// The main window under a real keyboard and mouse.
#include <gtest/gtest.h>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class KeyboardTest : public DesktopTest {
 protected:
  static constexpr char kScript[] = "one\r\n@ note\r\nthree\r\nfour\r\n";

  void SetUp() override {
    DesktopTest::SetUp();
    UseScript(kScript);
  }

  // Reaches a control by the mnemonic of its caption.
  static void GoTo(Troth& troth, char mnemonic, const std::wstring& control) {
    troth.Hands().Press(mnemonic, kWithAlt);
    AWAIT_EQ(control, troth.Focus());
  }
};

TEST_F(KeyboardTest, TabWalksThroughTheEnabledControlsInTheirOrder) {
  Troth troth;
  std::vector<std::wstring> stops;
  for (const HWND control : ControlsOn(troth.Window()))
    if (IsWindowEnabled(control) && IsWindowVisible(control) &&
        GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP)
      stops.push_back(NameOf(control));
  ASSERT_EQ(stops, (std::vector<std::wstring>{L"txtGroom", L"txtBride", L"txtFile", L"cmdBrowse", L"txtNext",
                                              L"cmdSpeak", L"chkYell", L"txtPrefix", L"lstWedding"}));
  AWAIT_EQ(stops[0], troth.Focus());
  for (std::size_t stop = 1; stop <= stops.size(); ++stop) {
    troth.Hands().Press(VK_TAB);
    AWAIT_EQ(stops[stop % stops.size()], troth.Focus());
  }
  troth.Hands().Press(VK_TAB, kWithShift);
  AWAIT_EQ(stops.back(), troth.Focus());
}

TEST_F(KeyboardTest, SpeakIsPressedByItsMnemonicByEnterAndByTheMouse) {
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.Hands().Press('S', kWithAlt);
  AWAIT_EQ(2, troth.List().Index());
  GoTo(troth, 'N', L"txtNext");
  troth.Hands().Press(VK_RETURN);
  AWAIT_EQ(3, troth.List().Index());
  troth.SetChecked(L"MOptionsPopup", false);
  troth.Hands().ClickMiddle(troth.Control(L"cmdSpeak"));
  AWAIT_EQ(0, troth.List().Index());
  EXPECT_EQ(game.HeardToTheEnd().bytes, "one\rthree\rfour\r");
}

TEST_F(KeyboardTest, ATypedPrefixStandsInFrontOfTheSentenceAndSilencesTheYell) {
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.Hands().ClickMiddle(troth.Control(L"chkYell"));
  AWAIT_EQ(L"! one", troth.Text(L"txtNext"));
  GoTo(troth, 'P', L"txtPrefix");
  troth.Hands().Type("Priest:");
  AWAIT_EQ(L"Priest: one", troth.Text(L"txtNext"));
  troth.Hands().Press(VK_RETURN);
  AWAIT_EQ(2, troth.List().Index());
  EXPECT_EQ(troth.Text(L"txtNext"), L"Priest: three");
  EXPECT_EQ(game.HeardToTheEnd().bytes, "Priest: one\r");
}

TEST_F(KeyboardTest, ATickIsToggledByTheMouseBySpaceAndByOtherPrograms) {
  Troth troth;
  const ForeignList list = troth.List();
  troth.Hands().Click(list.TickOf(0));
  AWAIT(!list.Ticked(0));
  AWAIT_EQ(L"", troth.Text(L"txtNext"));
  troth.Hands().Click(list.LabelOf(2));
  AWAIT_EQ(2, list.Index());
  AWAIT_EQ(L"three", troth.Text(L"txtNext"));
  EXPECT_EQ(troth.Focus(), L"lstWedding");
  troth.Hands().Press(VK_SPACE);
  AWAIT(!list.Ticked(2));
  AWAIT_EQ(L"", troth.Text(L"txtNext"));
  troth.Hands().Press(VK_SPACE);
  AWAIT(list.Ticked(2));
  AWAIT_EQ(L"three", troth.Text(L"txtNext"));
  for (const bool ticked : {false, false, true}) {
    list.SetTicked(2, ticked);
    EXPECT_EQ(list.Ticked(2), ticked);
    AWAIT_EQ(ticked ? L"three" : L"", troth.Text(L"txtNext"));
  }
}

TEST_F(KeyboardTest, TheFileMenuLeavesTheProgramByTheKeyboard) {
  Troth troth;
  troth.Hands().Press('F', kWithAlt);
  AWAIT([&] {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(troth.Window(), nullptr), &info);
    return info.flags & GUI_INMENUMODE;
  }());
  troth.Hands().Press('X');
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

}  // namespace
}  // namespace troth::desktop
