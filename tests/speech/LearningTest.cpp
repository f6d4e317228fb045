// What learning mode notes of the officiant's pace, and the sentences that it learns from.
#include "speech/Learning.h"

#include "livetools/frmPopup.h"
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class LearningMode : public SpeechTest {
 protected:
  WeddingRow& TheRow(int number) { return program.ScriptNow.Rows()->Item(number); }
};

TEST_F(LearningMode, RoundsTheTimeSinceTheSentenceBefore) {
  const std::pair<int, int> cases[] = {{99, 0},        {100, 200},     {299, 200},    {300, 400},
                                       {29899, 29800}, {29900, 30000}, {45000, 30000}};
  StartGame();
  Start({"One", "Two"});
  user.Choose(window->MOptionsLearning);
  EXPECT_FALSE(program.ScriptNow.Dirty());
  for (const auto& [passedMs, delayMs] : cases) {
    SelectRow(1);
    desktop.time.Advance(passedMs);
    Speak();
    EXPECT_EQ(TheRow(1).Delay(), delayMs) << passedMs;
    EXPECT_TRUE(program.ScriptNow.Dirty());
  }
  EXPECT_EQ(TheRow(2).Delay(), 0);
}

TEST_F(LearningMode, ShowsTheTimeWhileItIsOn) {
  StartGame();
  Start({"One", "Two"});
  user.Choose(window->MOptionsLearning);
  desktop.time.Advance(1230);
  EXPECT_TRUE(window->lblDebug.Visible());
  EXPECT_EQ(window->lblDebug.Caption(), L"1200");
  Speak();
  desktop.time.Advance(100);
  EXPECT_LT(std::stoi(window->lblDebug.Caption()), 200) << "starts again after each sentence";
  user.Choose(window->MOptionsLearning);
  EXPECT_FALSE(window->lblDebug.Visible());
  EXPECT_FALSE(window->tmrLearn.Enabled());
  Speak();
  EXPECT_EQ(TheRow(2).Delay(), 0);
}

TEST_F(LearningMode, LearnsFromAPartyCommandButOfNothingThatTheGameDidNotGet) {
  Start({"One", "$5000$,Two"});
  Check(window->MOptionsPopup, false);
  user.Choose(window->MOptionsLearning);
  Speak();
  EXPECT_FALSE(program.ScriptNow.Dirty());
  StartGame();
  desktop.time.Advance(4000);
  user.Choose(window->MOptionsAddParty);
  EXPECT_EQ(game->HeardText(), "\r/add\r");
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(TheRow(2).Delay(), 4000);
  // With no script there is nothing to learn, and nothing to save.
  program.ScriptNow.Dirty(false);
  UnloadScript();
  user.Choose(window->MOptionsAddParty);
  EXPECT_FALSE(program.ScriptNow.Dirty());
}

// A script that comes during the pause of a sentence or a popup is neither learned from nor moved on.
TEST_F(LearningMode, LeavesAScriptAloneThatWasOpenedMeanwhile) {
  const std::wstring other = L"C:\\Games\\Trothline\\wedscripts\\Other.txt";
  files.Put(other, "First\r\nSecond\r\n");
  StartGame();
  Start({"One", "&Wait", "Two"});
  user.Choose(window->MOptionsLearning);
  for (const int afterMs : {100, 1000}) {
    program.ScriptNow.Dirty(false);
    window->OpenScript(kScriptPath);
    desktop.time.After(afterMs, [&] {
      window->OpenScript(other);
      if (auto* popup = program.Opened<frmPopup>()) user.Click(popup->Command1);
    });
    Speak();
    EXPECT_EQ(Row(), 1) << afterMs;
    EXPECT_EQ(Next(), "First") << afterMs;
    EXPECT_EQ(TheRow(1).Delay(), 0) << afterMs;
  }
  EXPECT_EQ(game->HeardText(), "\rOne\r\rOne\r");
}

}  // namespace

}  // namespace troth
