// Sentences on their way from the real window to the game.
#include <gtest/gtest.h>

#include <numeric>

#include "tests/desktop/Patience.h"
#include "tests/desktop/Stage.h"

namespace troth::desktop {
namespace {

class SpeechTest : public DesktopTest {
 protected:
  // Presses Speak and waits until the script stands on that row.
  static void SpeakOnTo(Troth& troth, int row) {
    troth.Speak();
    AWAIT_EQ(row, troth.List().Index());
  }
};

TEST_F(SpeechTest, RaisesTheGameAndPostsAnEnterAndAfterAPauseTheSentence) {
  UseScript("hello\r\nworld\r\n");
  Game game;
  Troth troth;
  const POINT speak = CornerOf(troth.Control(L"cmdSpeak"));
  const ULONGLONG pressed = GetTickCount64();
  troth.Hands().Click({speak.x + 9, speak.y + 9});
  AWAIT_EQ("\rhello\r", game.HeardSoFar().bytes);
  AWAIT(GetForegroundWindow() == game.Window());
  // The system's tick count may lag one step behind.
  EXPECT_GE(GetTickCount64() - pressed + 16, 300u);
  EXPECT_EQ(game.HeardToTheEnd().seconds, std::set<long long>{1});
}

TEST_F(SpeechTest, PostsEveryByteThatAFileCanHold) {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  UseScript(bytes);
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.SetChecked(L"MOptionsPopup", false);
  SpeakOnTo(troth, 1);
  SpeakOnTo(troth, 0);
  EXPECT_EQ(troth.List().Count(), 2);
  EXPECT_EQ(game.HeardToTheEnd().bytes, bytes.substr(0, 13) + '\r' + bytes.substr(14) + '\r');
}

TEST_F(SpeechTest, LosesNothingToAGameThatStalls) {
  const std::string row(2000, 'x');
  UseScript(row + "1\r\n" + row + "2\r\nend\r\n");
  Game game({L"--stall-after", L"5"});
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  SpeakOnTo(troth, 1);
  SpeakOnTo(troth, 2);
  EXPECT_EQ(game.HeardSoFar().bytes, "xxxxx");
  game.EndStall();
  EXPECT_EQ(game.HeardToTheEnd().bytes, row + "1\r" + row + "2\r");
}

TEST_F(SpeechTest, DirectivesSwitchTheNotationOnAndOffAndAMistakeInItTypesNothing) {
  UseScript("a+b\r\n@{t1}\r\nA+b{ENTER}{+}\r\nd(e\r\n@ {T0}\r\nf+g{ENTER}\r\nend\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  constexpr struct {
    int row;
    bool isOn;
    const char* heard;
  } kSteps[] = {{2, true, "a+b\r"},
                {3, true, "a+b\rAB\r+\r"},
                {5, false, "a+b\rAB\r+\r"},
                {6, false, "a+b\rAB\r+\rf+g{ENTER}\r"}};
  for (const auto& step : kSteps) {
    SpeakOnTo(troth, step.row);
    AWAIT_EQ(step.isOn, troth.Checked(L"MOptionsTranslate"));
    EXPECT_EQ(troth.Visible(L"lblTranslation"), step.isOn);
    AWAIT_EQ(step.heard, game.HeardSoFar().bytes);
  }
  EXPECT_EQ(game.HeardToTheEnd().bytes, kSteps[3].heard);
}

TEST_F(SpeechTest, SpeaksAWholeSampleCeremonyRowByRow) {
  UseScriptPath(SampleScriptPath(L"Merry\\Elopement at Crow Stile.txt"));
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.SetChecked(L"MOptionsPopup", false);
  std::string shown;
  int sentences = 0;
  for (int index = troth.List().Index(), before = -1; index > before; ++sentences) {
    std::wstring next = troth.Text(L"txtNext");
    next.erase(0, next.find_first_not_of(L' '));  // the groom has no name
    shown += next.starts_with(L'/') ? "\r" : "";
    for (const wchar_t c : next) shown += static_cast<char>(c);
    if (!next.empty()) shown += '\r';
    troth.Speak();
    AWAIT(troth.List().Index() != index);
    before = std::exchange(index, troth.List().Index());
  }
  EXPECT_GT(sentences, 50);
  EXPECT_EQ(troth.List().Index(), 0) << "the script is at its end";
  EXPECT_EQ(game.HeardToTheEnd().bytes, shown);
}

}  // namespace
}  // namespace troth::desktop
