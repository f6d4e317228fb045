#include "livetools/frmVars.h"

#include "tests/speech/SpeechRig.h"

namespace troth {
namespace {

class frmVarsTest : public SpeechTest {
 protected:
  static constexpr wchar_t kFile[] = L"C:\\Games\\Trothline\\Vars.txt";

  void Start(const std::string& file, const Lines& script = {"#groom#, #ring# and #Hall#"}) {
    files.Put(kFile, file);
    SpeechTest::Start(script);
  }

  // Works in the dialog, which OK closes.
  void InDialog(const std::function<void(frmVars&)>& act) {
    desktop.forms.WhenModal(L"frmVars", [this, act] {
      frmVars& dialog = *program.Opened<frmVars>();
      act(dialog);
      user.Click(dialog.cmdOK);
    });
    user.Choose(window->MOptionsDefine);
  }
};

TEST_F(frmVarsTest, ShowsAllVariablesAndLetsOnlyTheUsersOwnBeChanged) {
  Start("ring=gold\r\nHall=moss\r\n");
  InDialog([&](frmVars& dialog) {
    EXPECT_EQ(Shown(dialog.lstVars), "*groom;bride;ring;Hall;");
    struct {
      int index;
      const wchar_t* value;
      bool isOwn;
    } const cases[] = {{1, L"", false}, {2, L"gold", true}, {3, L"moss", true}, {0, L"", false}};
    for (const auto& each : cases) {
      user.Select(dialog.lstVars, each.index);
      EXPECT_EQ(dialog.txtVal.Text(), each.value) << each.index;
      EXPECT_EQ(dialog.txtVal.Enabled(), each.isOwn) << each.index;
      EXPECT_EQ(dialog.cmdDelete.Enabled(), each.isOwn) << each.index;
    }
  });
  EXPECT_EQ(File(kFile), "ring=gold\r\nHall=moss\r\n");
}

TEST_F(frmVarsTest, AValueCountsAtEachKeystrokeAndReachesTheScriptWhenTheDialogGoes) {
  Start("ring=gold\r\n");
  InDialog([&](frmVars& dialog) {
    user.Select(dialog.lstVars, 2);
    TypeOver(dialog.txtVal, L" a band of oak ");
    EXPECT_EQ(program.UserVars.Item(3)->VarValue(), L"a band of oak");
    EXPECT_EQ(Next(), ", gold and #Hall#") << "still the sentence of before";
  });
  EXPECT_EQ(Next(), ", a band of oak and #Hall#");
  EXPECT_EQ(File(kFile), "ring=a band of oak\r\n");
}

TEST_F(frmVarsTest, AddsAndDeletes) {
  Start("ring=gold\r\n");
  InDialog([&](frmVars& dialog) {
    for (const wchar_t* answer : {L" Hall ", L"GROOM", L"ring", L"   "}) {
      desktop.dialogs.AnswerText(answer);
      user.Click(dialog.cmdNew);
    }
    desktop.dialogs.AnswerText(std::nullopt);
    user.Click(dialog.cmdNew);
    EXPECT_EQ(Shown(dialog.lstVars), "groom;bride;ring;*Hall;");
    user.Select(dialog.lstVars, 2);
    desktop.dialogs.AnswerText(L"Oath");
    user.Click(dialog.cmdNew);
    user.Type(L"moss");  // the value of the new one takes the keyboard
    user.Select(dialog.lstVars, 2);
    user.Click(dialog.cmdDelete);
    EXPECT_EQ(Shown(dialog.lstVars), "groom;bride;Hall;Oath;");
    EXPECT_EQ(dialog.txtVal.Text(), L"");
    EXPECT_FALSE(dialog.txtVal.Enabled());
    EXPECT_FALSE(dialog.cmdDelete.Enabled());
  });
  EXPECT_EQ(File(kFile), "Hall=\r\nOath=moss\r\n");
  const std::string ask = "ask Trothline: Enter a name for the new variable []";
  const std::string refusal = "box information Trothline: Error: variable already defined";
  EXPECT_EQ(TakeStory(), (Lines{ask, ask, refusal, ask, refusal, ask, ask, ask}));
}

TEST_F(frmVarsTest, OnlyOkClosesItAlsoWhereTheFileCannotBeWritten) {
  Start("ring=gold\r\n");
  files.RefuseWriting(kFile);
  InDialog([&](frmVars& dialog) {
    user.Press(kEscapeKey);
    user.CloseWindow(dialog);
    ASSERT_TRUE(dialog.Visible());
    user.Select(dialog.lstVars, 2);
    TypeOver(dialog.txtVal, L"oak");
  });
  EXPECT_EQ(program.Opened<frmVars>(), nullptr);
  EXPECT_EQ(File(kFile), "ring=gold\r\n");
  EXPECT_EQ(Next(), ", oak and #Hall#") << "the run keeps the value";
  EXPECT_EQ(TakeStory(),
            (Lines{"box stop Trothline: Error while writing 'C:\\Games\\Trothline\\VARS.TXT'. Your custom "
                   "variables will not be correctly loaded when you next start Trothline"}));
}

TEST_F(frmVarsTest, AFolderThatCannotBeWrittenToIsNamedOnce) {
  Start("ring=gold\r\n");
  desktop.files.Refuse(L"C:\\Games\\Trothline");
  for (int time = 0; time < 2; ++time) InDialog([](frmVars&) {});
  const Lines story = TakeStory();
  ASSERT_EQ(story.size(), 3u);
  EXPECT_EQ(
      story[1].find("box warning Trothline: Trothline may not write to its folder:\\xAC:\\Games\\Trothline"),
      0u)
      << story[1];
  EXPECT_EQ(story[0], story[2]);
}

// The boxes of the couple in the main window.
TEST_F(frmVarsTest, ANameReachesTheScriptWhenItsBoxIsLeft) {
  Start("", {"#groom# and #BRIDE#", "@", "Be well, #bride#"});
  SelectRow(3);
  user.Click(window->txtBride);
  user.Type(L" Anna ");
  EXPECT_EQ(Next(), "Be well, ");
  user.Click(window->txtGroom);
  EXPECT_EQ(Next(), "Be well, Anna");
  EXPECT_EQ(Row(), 3) << "the selected row stays";

  TypeOver(window->txtNext, L"my own words");
  user.Click(window->txtBride);
  user.Click(window->txtGroom);
  EXPECT_EQ(Next(), "my own words") << "nothing has changed, so nothing is built again";
  user.Type(L"Bram");
  user.Click(window->txtBride);
  SelectRow(1);
  EXPECT_EQ(Next(), "Bram and Anna");
}

}  // namespace
}  // namespace troth
