// Global hotkeys, pressed while the game has the keyboard, and the edit window that one of them opens.
#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class HotkeyTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Hotkey", L"Enabled", L"1");
    StoreSetting(L"Edit Box", L"Enabled", L"1");
    StoreSetting(L"Edit Box", L"Control", L"1");
  }

  static bool IsGlued(HWND edit, const Game& game) {
    RECT tool, around;
    GetWindowRect(edit, &tool);
    GetWindowRect(game.Window(), &around);
    return tool.left == around.left && tool.top == around.bottom;
  }
};

TEST_F(HotkeyTest, SpeaksWhileTheGameHasTheKeyboard) {
  UseScript("one\r\ntwo\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  const RealHands hands(game.Window());
  hands.Press(VK_F12);
  AWAIT_EQ("one\r", game.HeardSoFar().bytes);
  hands.Press(VK_F12, kWithShift);
  hands.Press(VK_F12);
  AWAIT_EQ("one\rtwo\r", game.HeardSoFar().bytes);
  AWAIT_EQ(2, troth.List().Index());
}

TEST_F(HotkeyTest, OpensTheEditWindowAtTheLowerLeftCornerOfTheGame) {
  Game game({L"--position", L"90,40", L"--size", L"500x300"});
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  RealHands(game.Window()).Press(VK_F12, kWithControl);
  AWAIT(troth.Running().FindForm(L"frmEdit"));
  const HWND edit = troth.Running().FindForm(L"frmEdit");
  AWAIT(IsGlued(edit, game));
  SetWindowPos(game.Window(), nullptr, 163, 77, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  AWAIT(IsGlued(edit, game));
  AWAIT_EQ(L"txtEdit", NameOf(FocusOf(edit)));
  const RealHands hands(edit);
  hands.Type("hello");
  hands.Press(VK_RETURN);
  AWAIT_EQ("hello\r", game.HeardSoFar().bytes);
  hands.Press(VK_UP);
  AWAIT_EQ(L"hello", TextOf(FindNamed(edit, L"txtEdit")));
  hands.Press(VK_ESCAPE);
  AWAIT_EQ(L"", TextOf(FindNamed(edit, L"txtEdit")));
  hands.Press(VK_ESCAPE);
  AWAIT(!IsWindow(edit));
  troth.Choose(L"MFileQuit");
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

// Each press lets the next one in while it pauses behind its leading Enter.
TEST_F(HotkeyTest, AThousandPressesDuringASendMixNoSentences) {
  constexpr int kPresses = 1000;
  UseScript("alpha\r\nbravo\r\ncharlie\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsPopup", false);
  const RealHands hands(game.Window());
  hands.Press(VK_F12, 0, kPresses);
  std::map<std::string, int> lines;
  AWAIT_EQ(2 * kPresses, [&] {  // an Enter before each sentence, and the one after it
    lines.clear();
    std::istringstream heard(game.HeardSoFar().bytes);
    int count = 0;
    for (std::string line; std::getline(heard, line, '\r'); ++count) ++lines[line];
    return count;
  }());
  EXPECT_EQ(lines[""], kPresses);
  EXPECT_EQ(lines["alpha"] + lines["bravo"] + lines["charlie"], kPresses);
  troth.Choose(L"MFileQuit");
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

}  // namespace
}  // namespace troth::desktop
