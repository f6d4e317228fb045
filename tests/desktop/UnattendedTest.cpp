// A ceremony that runs by itself, from the dialog to its end.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

constexpr ULONGLONG kTickMs = 200;

class UnattendedTest : public DesktopTest {
 protected:
  void SetUp() override {
    DesktopTest::SetUp();
    StoreSetting(L"Options", L"Speech Interval", L"2000");
    StoreSetting(L"Options", L"Autoterminate Pending Speech", L"0");
    StoreSetting(L"Options", L"Popup Messages", L"0");
  }
};

// When each line was heard; ends with as many lines as are wanted.
std::vector<ULONGLONG> ListenTo(const Game& game, std::size_t lines) {
  std::vector<ULONGLONG> heardAt;
  const auto listen = [&] {
    const std::string bytes = game.HeardSoFar().bytes;
    const auto count = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\r'));
    heardAt.resize(std::max(heardAt.size(), count), GetTickCount64());
    return heardAt.size() >= lines;
  };
  while (heardAt.size() < lines) {
    const std::size_t before = heardAt.size();
    if (!Eventually([&] { return listen() || heardAt.size() > before; })) break;
  }
  return heardAt;
}

TEST_F(UnattendedTest, SpeaksAScriptToItsEndWithItsPauses) {
  constexpr struct {
    const char* line;
    ULONGLONG waitMs;
  } kLines[] = {{"one", 2000}, {"", 1800}, {"/two", 0}, {"three", 2000}};
  UseScript("one\r\n@ note\r\n$1800$, /two\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.Choose(L"MOptionsUnattanded");
  const HWND dialog = troth.AwaitForm(L"frmMacro");
  const ULONGLONG startedAt = GetTickCount64();
  ClickButton(FindNamed(dialog, L"cdmOk"));
  AWAIT_EQ(L"&Stop", troth.Text(L"cmdSpeak"));
  const std::vector<ULONGLONG> heardAt = ListenTo(game, std::size(kLines));
  AWAIT_EQ(L"&Speak", troth.Text(L"cmdSpeak"));
  EXPECT_EQ(game.HeardToTheEnd().bytes, "one\r\r/two\rthree\r");
  ASSERT_EQ(heardAt.size(), std::size(kLines));
  // Counted from the start of the run, so that a line that is heard late makes none of the others early.
  ULONGLONG due = startedAt;
  for (std::size_t line = 0; line < std::size(kLines); ++line) {
    due += kLines[line].waitMs;
    EXPECT_GE(heardAt[line] + kTickMs, due) << kLines[line].line;
  }
}

TEST_F(UnattendedTest, TheSpeechHotkeyStopsItAndTheNextPressSpeaks) {
  StoreSetting(L"Hotkey", L"Enabled", L"1");
  UseScript("one\r\ntwo\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.Choose(L"MOptionsUnattanded");
  ClickButton(FindNamed(troth.AwaitForm(L"frmMacro"), L"cdmOk"));
  AWAIT_EQ("one\r", game.HeardSoFar().bytes);
  const RealHands hands(game.Window());
  hands.Press(VK_F12);
  AWAIT_EQ(L"&Speak", troth.Text(L"cmdSpeak"));
  EXPECT_TRUE(troth.Enabled(L"txtNext"));
  hands.Press(VK_F12);
  AWAIT_EQ("one\rtwo\r", game.HeardSoFar().bytes);
}

}  // namespace
}  // namespace troth::desktop
