// The main window from the start of the program to its end.
#include "shell/frmTroth.h"

#include "shell/StartUp.h"
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class frmTrothTest : public SpeechTest {};

TEST_F(frmTrothTest, StartsWithoutAScriptWhenThereIsNone) {
  for (const wchar_t* path : {L"", L"C:\\Games\\Trothline\\wedscripts\\gone.txt", L"gone.scr"}) {
    HeadlessDesktop other;
    SkipGreetings(other);
    if (*path) other.settings.Put(L"Troth", L"Options", L"Last Script", path);
    Program run(other.platform);
    auto& main = run.Open<frmTroth>();
    main.Show();
    EXPECT_EQ(main.lstWedding.Count(), 0);
    EXPECT_EQ(main.txtFile.Text(), L"");
    EXPECT_FALSE(main.cmdSpeak.Enabled());
    EXPECT_FALSE(run.WindowReady);
    EXPECT_EQ(run.ScriptNow.sFileName(), L"");
    EXPECT_TRUE(other.journal.Lines().empty());
    // What is typed all the same is not cleared by the rules of a sentence.
    other.user.Click(main.txtNext);
    other.user.Type(L"typed");
    other.user.Click(main.chkYell);
    EXPECT_EQ(main.txtNext.Text(), L"typed");
  }
}

TEST_F(frmTrothTest, EndsAtOnceWhenTheLastScriptCannotBeRead) {
  const std::wstring noText = L"C:\\Games\\Trothline\\wedscripts\\vows.scr";
  files.Put(noText, "Welcome.");
  PutScript({"Welcome."});
  files.RefuseReading(kScriptPath);
  for (const std::wstring& path : {noText, kScriptPath}) {
    Store(L"Last Script", path);
    Program run(desktop.platform);
    EXPECT_THROW(RunProgram(run), ProcessEnded);
    EXPECT_EQ(
        TakeStory(),
        (Lines{"box stop Application error: Error while reading Script file. Aborting execution.", "end 1"}));
  }
}

TEST_F(frmTrothTest, EnterSpeaksFromEachBoxAndMnemonicsLeadToTheControls) {
  StartGame();
  Start({"One", "Two", "Three"});
  user.Press('N', kAltDown);
  EXPECT_EQ(user.Focused(), &window->txtNext);
  user.Press(kEnterKey);
  user.Press('P', kAltDown);
  EXPECT_EQ(user.Focused(), &window->txtPrefix);
  user.Press(kEnterKey);
  user.Press('W', kAltDown);
  EXPECT_EQ(user.Focused(), &window->lstWedding);
  user.Press('Y', kAltDown);
  EXPECT_TRUE(window->chkYell.Ticked());
  user.Press('S', kAltDown);
  EXPECT_EQ(game->HeardText(), "\rOne\r\rTwo\r\r! Three\r");
}

TEST_F(frmTrothTest, FlagsFollowTheirOptionsAtOnce) {
  Start({"One"});
  EXPECT_FALSE(window->lblTranslation.Visible());
  EXPECT_FALSE(window->lblUnicode.Visible());
  for (const bool on : {true, false}) {
    Check(window->MOptionsTranslate, on);
    EXPECT_EQ(window->lblTranslation.Visible(), on);
    Check(window->MOptionsUnicode, !on);
    EXPECT_EQ(window->lblUnicode.Visible(), on);
  }
}

}  // namespace

}  // namespace troth
