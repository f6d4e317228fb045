#include "livetools/frmDynamic.h"

#include "tests/speech/SpeechRig.h"

namespace troth {
namespace {

class frmDynamicTest : public SpeechTest {
 protected:
  void Define(const std::wstring& name, const std::wstring& value) {
    program.DynamicVars.Add(name, value, name);
  }

  void InDialog(const std::function<void(frmDynamic&)>& act) {
    desktop.forms.WhenModal(L"frmDynamic", [this, act] {
      frmDynamic& dialog = *program.Opened<frmDynamic>();
      act(dialog);
      user.Press(kEscapeKey);
    });
    user.Choose(window->MViewDynamic);
  }

  std::string Variables() const {
    std::string store;
    for (const CustVar& variable : program.DynamicVars)
      store += Readable(variable.VarName() + L'=' + variable.VarValue()) + ";";
    return store;
  }
};

TEST_F(frmDynamicTest, ListsTheVariablesByTextAndDisablesWhatNeedsOne) {
  Start({"hello"});
  InDialog([&](frmDynamic& dialog) {
    EXPECT_EQ(Shown(dialog.lstDynamic), "");
    EXPECT_FALSE(dialog.cmdEdit.Enabled() || dialog.cmdDelete.Enabled() || dialog.cmdClear.Enabled());
  });
  Define(L"RING", L"gold");
  Define(L"ALE", L"");
  InDialog([&](frmDynamic& dialog) {
    EXPECT_EQ(Shown(dialog.lstDynamic), "*ALE=;RING=gold;");
    EXPECT_TRUE(dialog.cmdEdit.Enabled() && dialog.cmdDelete.Enabled() && dialog.cmdClear.Enabled());
  });
}

TEST_F(frmDynamicTest, AddsUnlessThereIsNoNameNoValueOrOneOfThatName) {
  Start({"hello"});
  Define(L"RING", L"gold");
  struct {
    std::vector<std::optional<std::wstring>> answers;
    const char* store;
  } const cases[] = {
      {{L" hall ", L" moss "}, "RING=gold;HALL=moss;"},
      {{L"ring"}, "RING=gold;"},
      {{L"  "}, "RING=gold;"},
      {{std::nullopt}, "RING=gold;"},
      {{L"hall", L" "}, "RING=gold;"},
      {{L"hall", std::nullopt}, "RING=gold;"},
  };
  for (const auto& each : cases) {
    program.DynamicVars = CustVars();
    Define(L"RING", L"gold");
    InDialog([&](frmDynamic& dialog) {
      for (const auto& answer : each.answers) desktop.dialogs.AnswerText(answer);
      user.Click(dialog.cmdAdd);
      EXPECT_EQ(dialog.lstDynamic.Index(), 0) << "the first entry, not the new one";
    });
    EXPECT_EQ(Variables(), each.store);
  }
  const Lines story = TakeStory();
  const auto has = [&](const char* line) { return std::count(story.begin(), story.end(), line); };
  EXPECT_EQ(has("ask Trothline: Please enter the name of your new variable [Newvar]"), 6);
  EXPECT_EQ(has("ask Trothline: Please enter a value for HALL []"), 3);
  EXPECT_EQ(has("box warning Trothline: A dynamic variable named RING already exists."), 1);
}

TEST_F(frmDynamicTest, EditsByButtonAndDoubleClickButEmptiesNothing) {
  Start({"hello"});
  Define(L"RING", L"a=b");
  Define(L"HALL", L"moss");
  InDialog([&](frmDynamic& dialog) {
    user.Select(dialog.lstDynamic, 1);
    desktop.dialogs.AnswerText(L" c=d ");
    user.Click(dialog.cmdEdit);
    EXPECT_EQ(Shown(dialog.lstDynamic), "*HALL=moss;RING=c=d;");
    desktop.dialogs.AnswerText(L" ");
    user.DoubleClick(dialog.lstDynamic, 0);
    desktop.dialogs.AnswerText(std::nullopt);
    user.DoubleClick(dialog.lstDynamic, 0);
  });
  EXPECT_EQ(Variables(), "RING=c=d;HALL=moss;");
  EXPECT_EQ(TakeStory(), (Lines{"ask Trothline: Please enter a new value for RING [a=b]",
                                "ask Trothline: Please enter a new value for HALL [moss]",
                                "ask Trothline: Please enter a new value for HALL [moss]"}));
}

TEST_F(frmDynamicTest, DeletesAndClearsOnlyOnYes) {
  Start({"hello"});
  for (const wchar_t* name : {L"A", L"B", L"C"}) Define(name, L"1");
  InDialog([&](frmDynamic& dialog) {
    user.Select(dialog.lstDynamic, 1);
    desktop.dialogs.Answer(BoxAnswer::No);
    user.Click(dialog.cmdDelete);
    EXPECT_EQ(Variables(), "A=1;B=1;C=1;");
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.Click(dialog.cmdDelete);
    EXPECT_EQ(Shown(dialog.lstDynamic), "*A=1;C=1;");
    desktop.dialogs.Answer(BoxAnswer::No);
    user.Click(dialog.cmdClear);
    EXPECT_EQ(Variables(), "A=1;C=1;");
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.Click(dialog.cmdClear);
    EXPECT_EQ(Shown(dialog.lstDynamic), "");
    EXPECT_FALSE(dialog.cmdEdit.Enabled());
  });
  EXPECT_EQ(Variables(), "");
  const Lines story = TakeStory();
  EXPECT_EQ(story[0], "box question Trothline: Do you really want to clear B?");
  EXPECT_EQ(story[2], "box question Trothline: Do you really want to clear all dynamic variables?");
}

TEST_F(frmDynamicTest, FindsAnEntryThatCouldBeTwoNamesByItsFirstEqualsSign) {
  Start({"hello"});
  Define(L"A", L"1");
  Define(L"A=B", L"2");
  InDialog([&](frmDynamic& dialog) {
    user.Select(dialog.lstDynamic, 1);
    desktop.dialogs.AnswerText(L"3");
    user.Click(dialog.cmdEdit);
  });
  EXPECT_EQ(Variables(), "A=3;A=B=2;");
}

TEST_F(frmDynamicTest, AChangeReachesTheNextSentenceAndNotTheOneThatStandsReady) {
  Start({"The #ring# ring", "A #ring# ring"});
  Define(L"RING", L"gold");
  window->lstWedding.SetIndex(1);
  EXPECT_EQ(Next(), "A gold ring");
  InDialog([&](frmDynamic& dialog) {
    desktop.dialogs.AnswerText(L"oak");
    user.Click(dialog.cmdEdit);
  });
  EXPECT_EQ(Next(), "A gold ring");
  SelectRow(1);
  EXPECT_EQ(Next(), "The oak ring");
}

}  // namespace
}  // namespace troth
