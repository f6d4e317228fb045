// Sentences on their way from the real window to the game.
#include <gtest/gtest.h>

#include <numeric>

#include "tests/desktop/Ceremony.h"
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

TEST_F(SpeechTest, PostsAnEnterWaitsAndThenPostsTheSentenceAndItsEnter) {
  UseScript("hello\r\nworld\r\n");
  Game game;
  Troth troth;
  troth.Window();
  const ULONGLONG pressed = GetTickCount64();
  troth.Speak();
  AWAIT_EQ("\rhello\r", game.HeardSoFar().bytes);
  // The system's tick count may lag one step behind.
  EXPECT_GE(GetTickCount64() - pressed + 16, 300u);
  EXPECT_EQ(game.HeardToTheEnd().seconds, std::set<long long>{1});
}

TEST_F(SpeechTest, PostsTheSentenceAtOnceWithoutAutotermination) {
  UseScript("hello\r\n/bow\r\nworld\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  SpeakOnTo(troth, 1);
  SpeakOnTo(troth, 2);
  const Heard heard = game.HeardToTheEnd();
  EXPECT_EQ(heard.bytes, "hello\r\r/bow\r") << "a party command keeps its leading Enter";
  EXPECT_EQ(heard.seconds, std::set<long long>{1});
}

TEST_F(SpeechTest, RaisesTheGame) {
  UseScript("hello\r\nworld\r\n");
  Game game;
  Troth troth;
  troth.Hands().ClickMiddle(troth.Control(L"cmdSpeak"));
  AWAIT(GetForegroundWindow() == game.Window());
}

TEST_F(SpeechTest, SpeaksToTheSecondClassOnlyWithoutTheFirst) {
  UseScript("one\r\ntwo\r\nthree\r\n");
  Game second({L"--class", L"Kestrel Moors Pale Light"});
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  SpeakOnTo(troth, 1);
  {
    Game first;
    SpeakOnTo(troth, 2);
    EXPECT_EQ(first.HeardToTheEnd().bytes, "two\r");
  }
  EXPECT_EQ(second.HeardToTheEnd().bytes, "one\r");
}

TEST_F(SpeechTest, ShowsTheLostSentenceInABoxWithoutAGameAndMovesOn) {
  UseScript("hello\r\nworld\r\n");
  Troth troth;
  troth.Window();
  troth.Speak();
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.title, L"Can't speak, KM is not running :)");
  EXPECT_EQ(box.text, L"hello");
  troth.Answer(box);
  AWAIT_EQ(1, troth.List().Index());
  EXPECT_EQ(troth.Text(L"txtNext"), L"world");
}

TEST_F(SpeechTest, ShowsNoBoxAtAllWithPopupMessagesOff) {
  UseScript("hello\r\nworld\r\n");
  Troth troth;
  troth.SetChecked(L"MOptionsPopup", false);
  SpeakOnTo(troth, 1);
  // A box would come before the selection of row 1, at which the script has ended.
  SpeakOnTo(troth, 0);
  EXPECT_FALSE(troth.BoxIsUp());
}

TEST_F(SpeechTest, ReportsTheEndOfTheScriptAndStartsOver) {
  UseScript("one\r\ntwo\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  SpeakOnTo(troth, 1);
  troth.Speak();
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.title, L"Trothline");
  EXPECT_EQ(box.text, L"End of script, clicking on Speak again will start over.");
  troth.Answer(box);
  EXPECT_EQ(troth.Text(L"txtNext"), L"one");
  SpeakOnTo(troth, 1);
  EXPECT_EQ(game.HeardToTheEnd().bytes, "one\rtwo\rone\r");
}

TEST_F(SpeechTest, PassesOverCommentsAndUntickedRows) {
  UseScript("@ a note\r\none\r\n@!Chapter\r\n@{T1}\r\ntwo\r\nthree\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  EXPECT_EQ(troth.Text(L"txtNext"), L"");
  SpeakOnTo(troth, 1);
  troth.Hands().Click(troth.List().TickOf(4));
  AWAIT(!troth.List().Ticked(4));
  SpeakOnTo(troth, 5);
  EXPECT_EQ(game.HeardToTheEnd().bytes, "one\r");
}

TEST_F(SpeechTest, PostsTheVeryBytesOfTheUpperHalfOfTheCodePage) {
  std::string row(128, '\0');
  std::iota(row.begin(), row.end(), static_cast<char>(-128));
  UseScript(row + "\r\nend\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  SpeakOnTo(troth, 1);
  EXPECT_EQ(game.HeardToTheEnd().bytes, row + '\r');
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

TEST_F(SpeechTest, LosesNothingToASlowGame) {
  UseScript("The first is the wind.\r\nIt cannot keep a secret.\r\nend\r\n");
  Game game({L"--slow", L"2"});
  Troth troth;
  SpeakOnTo(troth, 1);
  SpeakOnTo(troth, 2);
  EXPECT_EQ(game.HeardToTheEnd().bytes, "\rThe first is the wind.\r\rIt cannot keep a secret.\r");
}

TEST_F(SpeechTest, GoesOnWhenTheGameIsClosedInBetween) {
  UseScript("one\r\ntwo\r\nthree\r\n");
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  {
    Game game;
    SpeakOnTo(troth, 1);
    EXPECT_EQ(game.HeardToTheEnd().bytes, "one\r");
  }
  troth.Speak();
  const Box box = troth.AwaitBox();
  EXPECT_EQ(box.text, L"two");
  troth.Answer(box);
  AWAIT_EQ(2, troth.List().Index());
}

TEST_F(SpeechTest, TypesRealKeysInKeystrokeModeAndObeysTheirNotation) {
  UseScript("Hello, you two! It's 5 o'clock\r\none~two\r\nend\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsTranslate", true);
  SpeakOnTo(troth, 1);
  EXPECT_EQ(GetForegroundWindow(), game.Window());
  SpeakOnTo(troth, 2);
  AWAIT_EQ("\rHello, you two! It's 5 o'clock\r\rone\rtwo\r", game.HeardSoFar().bytes);
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

TEST_F(SpeechTest, CharactersAreTranslatedByTheFileWhileUnicodeIsOff) {
  const ProgramFile file(L"Unicode.ini", "\xE9=e\r\n\xDF:ss\r\nx=\r\n/ .\r\n");
  UseScript("/caf\xE9 \xDFx\r\n/caf\xE9 \xDFx\r\nend\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.SetChecked(L"MOptionsUnicode", false);
  EXPECT_EQ(troth.Text(L"txtNext"), L"/caf\xE9 \xDFx");
  SpeakOnTo(troth, 1);
  troth.SetChecked(L"MOptionsUnicode", true);
  SpeakOnTo(troth, 2);
  EXPECT_EQ(game.HeardToTheEnd().bytes, ".cafe ssx\r\r/caf\xE9 \xDFx\r");
}

TEST_F(SpeechTest, SpeaksWhatThePersonTypedInsteadOfTheRow) {
  UseScript("one\r\ntwo\r\n");
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  const RealHands hands = troth.Hands();
  hands.Press('N', kWithAlt);
  AWAIT_EQ(L"txtNext", troth.Focus());
  hands.Type("Well then: ");
  AWAIT(troth.Text(L"txtNext").find(L"Well then: ") != std::wstring::npos);
  const std::wstring typed = troth.Text(L"txtNext");
  hands.Press(VK_RETURN);
  AWAIT_EQ(1, troth.List().Index());
  EXPECT_EQ(game.HeardToTheEnd().bytes, std::string(typed.begin(), typed.end()) + '\r');
}

TEST_F(SpeechTest, SpeaksAWholeSampleCeremonyRowByRow) {
  const std::wstring path = SampleScriptPath(L"Moorland Handfasting.txt");
  Words words = WordsOf(ReadBytes(ProgramPath(L"Vars.txt")));
  words["GROOM"] = words["BRIDE"] = "";
  const std::vector<SpokenRow> rows = SpokenRows(ReadBytes(path), words);
  ASSERT_GT(rows.size(), 50u);
  UseScriptPath(path);
  Game game;
  Troth troth;
  troth.SetChecked(L"MOptionsAuto", false);
  troth.SetChecked(L"MOptionsPopup", false);
  for (const SpokenRow& row : rows) {
    const int index = troth.List().Index();
    ASSERT_FALSE(troth.Text(L"txtNext").empty()) << row.text;
    troth.Speak();
    AWAIT(troth.List().Index() != index);
  }
  EXPECT_EQ(troth.List().Index(), 0) << "the script is at its end";
  EXPECT_EQ(game.HeardToTheEnd().bytes, CharactersOf(rows));
}

}  // namespace
}  // namespace troth::desktop
