// Filling the lists from the live script, and refreshing them.
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class ShowLanguage : public SpeechTest {
 protected:
  void SetUp() override {
    callbacks.showParagraphs = [this](const std::vector<std::wstring>& titles, bool hasRows) {
      std::string line = hasRows ? "paragraphs" : "no rows";
      for (const std::wstring& title : titles) line += " " + Readable(title);
      desktop.journal.Add(line);
    };
    callbacks.selectParagraph = [this](int index) {
      desktop.journal.Add("paragraph " + std::to_string(index));
    };
  }
};

TEST_F(ShowLanguage, ListsRowsWithTheirTicksAndParagraphsWithTheirFirstRows) {
  StartDriver({"Hello.", "@note", "@!Vows", "I do.", "@!a", "&popup", "@!Rings", "@!Feast", "$5$,/eat"});
  const ListEntry entries[] = {{L"Hello.", true},   {L"@note", false},   {L"@!Vows", false},
                               {L"I do.", true},    {L"@!a", false},     {L"&popup", false},
                               {L"@!Rings", false}, {L"@!Feast", false}, {L"/eat", true}};
  ASSERT_EQ(window->lstWedding.Count(), 9);
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(window->lstWedding.Text(i), entries[i].text);
    EXPECT_EQ(window->lstWedding.Ticked(i), entries[i].ticked) << i;
  }
  EXPECT_EQ(window->txtFile.Text(), L"Vows");
  const int listPointers[] = {2, 6, 7};
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(program.ScriptIndexEntries.Item(i + 1).ListPointer(), listPointers[i]);
  EXPECT_EQ(TakeStory(), (Lines{"paragraphs Vows Rings Feast", "paragraph -1"}));
  EXPECT_TRUE(program.WindowReady);
  EXPECT_TRUE(window->cmdSpeak.Enabled());
  EXPECT_EQ(program.ScriptNow.CurrentRow(), 1);
  EXPECT_EQ(Next(), "Hello.");
  for (const auto& [row, paragraph] : {std::pair(4, 0), {5, 0}, {7, 1}, {9, 2}, {2, -1}}) {
    SelectRow(row);
    EXPECT_EQ(TakeStory(), Lines{"paragraph " + std::to_string(paragraph)});
    EXPECT_EQ(program.ScriptNow.CurrentRow(), row);
  }
}

TEST_F(ShowLanguage, OfAnEmptyScriptSelectsNothingAndDisablesWhatNeedsARow) {
  StartDriver({"@!Old", "Old."});
  TakeStory();
  SelectRow(2);
  LoadScript({"", "  "});
  EXPECT_EQ(TakeStory(), (Lines{"paragraph 0", "no rows"}));
  EXPECT_EQ(window->txtFile.Text(), L"Vows");
  EXPECT_EQ(window->lstWedding.Count(), 0);
  EXPECT_EQ(window->lstWedding.Index(), -1);
  EXPECT_EQ(program.ScriptNow.CurrentRow(), 0);
  EXPECT_FALSE(window->cmdSpeak.Enabled());
  EXPECT_EQ(Next(), "");
  EXPECT_TRUE(program.WindowReady);
  LoadScript({"x", "Back."});
  EXPECT_TRUE(window->cmdSpeak.Enabled());
  EXPECT_TRUE(window->lstWedding.Ticked(1));
}

TEST_F(ShowLanguage, WithoutAScriptClearsTheListsAndLeavesTheReadyStateAsItWas) {
  StartDriver({"@!Old", "Old."});
  SelectRow(2);
  TakeStory();
  UnloadScript();
  TakeStory();
  for (const bool ready : {true, false}) {
    program.WindowReady = ready;
    window->ShowLanguage();
    EXPECT_EQ(TakeStory(), Lines{"no rows"});
    EXPECT_EQ(program.WindowReady, ready);
    EXPECT_EQ(window->txtFile.Text(), L"");
    EXPECT_EQ(window->lstWedding.Count(), 0);
    EXPECT_EQ(Next(), "");
    EXPECT_FALSE(window->cmdSpeak.Enabled());
  }
}

TEST_F(ShowLanguage, RefreshKeepsTheRowAndShowsWhatTheVariablesMadeOfIt) {
  Start({"@!Vows", "Dear #groom#", "Kiss #groom#"});
  program.UserVars.Item(L"groom")->VarValue(L"Rowan");
  SelectRow(3);
  user.ClickTick(window->lstWedding, 1);
  TypeOver(window->txtNext, L"typed");
  window->RefreshScript();
  EXPECT_EQ(Row(), 3);
  EXPECT_EQ(Next(), "Kiss Rowan");
  EXPECT_EQ(window->lstWedding.Text(1), L"Dear Rowan");
  EXPECT_TRUE(window->lstWedding.Ticked(1));
  LoadScript({});
  window->RefreshScript();
  EXPECT_EQ(Row(), 0);
}

// A hotkey that is pressed behind the warning finds rows, list and current row in agreement.
TEST_F(ShowLanguage, WarnsOfTooManyRowsWhenTheListsAreComplete) {
  Start({"One"});
  StartGame();
  Check(window->MOptionsAuto, false);
  desktop.dialogs.WhileNextBox([this] {
    window->DoSpeechRow(L"");
    window->DoSpeechRow(L"");
  });
  LoadScript(Lines(32768, "New"));
  EXPECT_EQ(window->lstWedding.Count(), 32767);
  EXPECT_EQ(game->HeardText(), "New\rNew\r");
  EXPECT_EQ(Row(), 3);
  window->RefreshScript();
  EXPECT_EQ(desktop.dialogs.Shown().size(), 1u) << "once for each load";
}

}  // namespace

}  // namespace troth
