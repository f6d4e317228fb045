// Global hotkeys, pressed while the game has the keyboard, and the edit window that one of them opens.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <stdexcept>

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

// Presses the speech hotkey until it is answered. On a busy machine a press can look like one that is held,
// if its key goes down before it was seen up; it then counts for nothing. Returns how many presses were lost.
template <class Condition>
int PressUntil(const RealHands& hands, Condition isAnswered) {
  constexpr ULONGLONG kAnswerMs = 5000;
  for (int lost = 0; lost < 4; ++lost) {
    hands.Press(VK_F12);
    if (Eventually(isAnswered, kAnswerMs)) return lost;
  }
  throw std::runtime_error("the hotkey is not answered");
}

TEST_F(HotkeyTest, SpeaksWhileTheGameHasTheKeyboard) {
  UseScript("one\r\ntwo\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  const RealHands hands(game.Window());
  hands.Press(VK_F12);
  AWAIT_EQ("one\r", game.HeardSoFar().bytes);
  hands.Press(VK_F12, kWithShift);
  PressUntil(hands, [&] { return game.HeardSoFar().bytes == "one\rtwo\r"; });
  AWAIT_EQ(2, troth.List().Index());
}

// A held key comes again and again without having been up, as the keyboard repeats it.
TEST_F(HotkeyTest, AHeldKeySpeaksOnce) {
  UseScript("one\r\ntwo\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  const RealHands hands(game.Window());
  hands.BringToFront();
  INPUT key{};
  key.type = INPUT_KEYBOARD;
  key.ki.wVk = VK_F12;
  key.ki.wScan = static_cast<WORD>(MapVirtualKeyW(VK_F12, MAPVK_VK_TO_VSC));
  for (int report = 0; report < 15; ++report) {
    SendInput(1, &key, sizeof key);
    Sleep(33);
  }
  key.ki.dwFlags = KEYEVENTF_KEYUP;
  SendInput(1, &key, sizeof key);
  AWAIT_EQ("one\r", game.HeardSoFar().bytes);
  AWAIT_EQ(1, troth.List().Index());
  PressUntil(hands, [&] { return game.HeardSoFar().bytes == "one\rtwo\r"; });
  EXPECT_TRUE(troth.Quit());
  EXPECT_EQ(game.HeardToTheEnd().bytes, "one\rtwo\r");
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
  hands.Type("!");
  AWAIT_EQ(L"hello!", TextOf(FindNamed(edit, L"txtEdit")));
  hands.Press(VK_ESCAPE);
  AWAIT_EQ(L"", TextOf(FindNamed(edit, L"txtEdit")));
  hands.Press(VK_ESCAPE);
  AWAIT(!IsWindow(edit));
  troth.Choose(L"MFileQuit");
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

// Each press lets the next one in while it pauses after its leading Enter.
TEST_F(HotkeyTest, PressesDuringASendMixNoSentences) {
  constexpr int kPresses = 100;
  UseScript("alpha\r\nbravo\r\ncharlie\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsPopup", false);
  const RealHands hands(game.Window());
  const auto lines = [&] {
    std::map<std::string, int> counts;
    std::istringstream heard(game.HeardSoFar().bytes);
    for (std::string line; std::getline(heard, line, '\r');) ++counts[line];
    return counts;
  };
  for (int press = 1; press <= kPresses; ++press) PressUntil(hands, [&] { return lines()[""] >= press; });
  const auto sentences = [&] { return lines()["alpha"] + lines()["bravo"] + lines()["charlie"]; };
  AWAIT_EQ(kPresses, sentences());
  EXPECT_EQ(lines()[""], kPresses);
  for (const auto& [line, count] : lines())
    EXPECT_TRUE(line.empty() || line == "alpha" || line == "bravo" || line == "charlie") << line;
  troth.Choose(L"MFileQuit");
  EXPECT_EQ(troth.Running().ExitCode(), 0u);
}

}  // namespace
}  // namespace troth::desktop
