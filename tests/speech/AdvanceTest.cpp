// The walk down the script: where it stops, what it does on its way, and the keys that move in the script.
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class Advance : public SpeechTest {
 protected:
  // Callbacks that write what happens on the way into the story.
  void StartWatched(const Lines& lines) {
    callbacks.showPopup = Writer("popup");
    callbacks.carryOutDirective = Writer("directive");
    StartDriver(lines);
  }

  // Moves on without a word, from where a click on the row leads.
  Lines AdvanceFrom(int row) {
    SelectRow(row);
    window->txtNext.SetText(L"");
    TakeStory();
    window->DoSpeechRow(L"");
    return TakeStory();
  }
};

TEST_F(Advance, GoesThroughTheScriptAndReportsItsEnd) {
  StartGame();
  Start({"One", "Two", "Three"});
  const int rows[] = {2, 3, 1, 2, 3, 1};
  for (int i = 0; i < 6; ++i) {
    if (i == 5) Check(window->MOptionsPopup, false);
    Speak();
    EXPECT_EQ(Row(), rows[i]);
    EXPECT_EQ(desktop.dialogs.Shown().size(), i < 2 ? 0u : 1u);
  }
  EXPECT_EQ(game->HeardText(), "\rOne\r\rTwo\r\rThree\r\rOne\r\rTwo\r\rThree\r");
}

TEST_F(Advance, StopsOnTheNextRowThatIsToBeSpoken) {
  const struct {
    Lines rows;
    std::vector<int> unticked;
    bool skipEmote;
    bool skipParty;
    int stopsOn;
  } cases[] = {
      {{"One", "@c", "&p", "@{SS}", "@!Vows", "Six"}, {}, false, false, 6},
      {{"One", "Two", "Three", "Four"}, {2, 3}, false, false, 4},
      {{"One", ":bows", "/g hi", "~hm"}, {}, false, false, 2},
      {{"One", ":bows", ": nods", "/g hi", "~hm"}, {}, true, false, 4},
      {{"One", "/g hi", "/x", ":bows", "~hm"}, {}, false, true, 4},
      {{"One", ":bows", "/g hi", "~hm"}, {}, true, true, 4},
      {{"One", ":", "Three"}, {}, true, true, 2},  // the skip options want two characters
      {{"One", "/", "Three"}, {}, true, true, 2},
      {{"One", "@c", ":bows", "Four"}, {4}, true, false, 1},
      // Row 1 is the resting place, whatever it is.
      {{"@c", "@d"}, {}, false, false, 1},
      {{"/g hi", ":bows"}, {1}, true, true, 1},
  };
  desktop.forms.WhenModal(L"frmPopup", [this] { user.Press(kEnterKey); });
  Start({"One"});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.rows[1 % c.rows.size()]);
    LoadScript(c.rows);
    for (const int row : c.unticked) user.ClickTick(window->lstWedding, row - 1);
    Check(window->MOptionsEmote, c.skipEmote);
    Check(window->MOptionsCounselor, c.skipParty);
    AdvanceFrom(1);
    EXPECT_EQ(Row(), c.stopsOn);
  }
}

// A sentence that was typed over is gone once it has been spoken, also where the script stays on its row.
TEST_F(Advance, ShowsTheSentenceOfItsRowEvenIfThatIsTheSameRow) {
  StartGame();
  Start({});
  for (const Lines& rows : {Lines{"One"}, Lines{"One", "@end"}, Lines{"One", "Two"}}) {
    LoadScript(rows);
    game->heard.clear();
    TypeOver(window->txtNext, L"typed");
    Speak();
    EXPECT_EQ(game->HeardText(), "\rtyped\r");
    EXPECT_EQ(Next(), rows.back() == "Two" ? "Two" : "One");
  }
}

TEST_F(Advance, ShowsPopupsAndCarriesOutDirectivesInOrder) {
  StartWatched({"&  Row one {SS}", "@ {T1} ", "& Please  rise ", "@note", "&{SS}", "&", "Seven", "@{T0}"});
  EXPECT_EQ(AdvanceFrom(1),
            (Lines{"directive {T1}", "popup  Please  rise", "directive Please  rise", "directive note",
                   "popup {SS}", "directive {SS}", "popup ", "directive "}));
  EXPECT_EQ(Row(), 7);
  EXPECT_EQ(AdvanceFrom(7), (Lines{"directive {T0}", "popup   Row one {SS}", "stop"}));
  EXPECT_EQ(Row(), 1);
  // They come again at each pass, and not for rows that a click or a key jumps over.
  EXPECT_EQ(AdvanceFrom(4), (Lines{"popup {SS}", "directive {SS}", "popup ", "directive "}));
  user.Click(window->txtNext);
  for (const int key : {kUpKey, kDownKey, kDownKey, kUpKey}) user.Press(key);
  EXPECT_EQ(TakeStory(), Lines{});
  window->MOptionsPopup.SetChecked(false);
  EXPECT_EQ(AdvanceFrom(4), (Lines{"directive {SS}", "directive "}));
  EXPECT_EQ(AdvanceFrom(7), (Lines{"directive {T0}", "stop"}));
}

TEST_F(Advance, StaysOnTheFirstRowOfAScriptThatAPopupLoads) {
  Lines other;
  callbacks.showPopup = [&](const std::wstring&) { LoadScript(other); };
  StartDriver({"One"});
  for (const Lines& rows : {Lines{}, Lines{"Uno"}, Lines{"Uno", "@dos", "Tres", "@cuatro", "Cinco"}}) {
    LoadScript({"One", "@two", "&Popup", "Four"});
    other = rows;
    AdvanceFrom(1);
    EXPECT_EQ(Row(), rows.empty() ? 0 : 1);
  }
}

// The hotkey reaches the driver while the button is disabled.
TEST_F(Advance, DoesNothingWithoutRows) {
  StartGame();
  Start({});
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_FALSE(window->cmdSpeak.Enabled());
    window->DoSpeechRow(L"");
    user.Click(window->txtNext);
    for (const int key : {kEndKey, kHomeKey, kUpKey, kDownKey})
      user.Press(key, key < kUpKey ? kControlDown : 0);
    EXPECT_EQ(TakeStory(), Lines{});
    window->DoSpeechRow(L"/add");
    TypeOver(window->txtNext, L"typed");
    window->DoSpeechRow(L"");
    EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>/add<13>", kRaise, "posts <13>typed<13>"}));
    EXPECT_EQ(Row(), 0);
    UnloadScript();
    window->txtNext.SetText(L"");
  }
}

TEST_F(Advance, KeysOfTheSentenceBoxMoveInTheScript) {
  const struct {
    int key;
    int shift;
    std::vector<std::pair<int, int>> fromTo;
  } cases[] = {{kEndKey, kControlDown, {{3, 7}, {7, 7}}},
               {kHomeKey, kControlDown, {{3, 1}, {1, 1}}},
               {kUpKey, 0, {{3, 1}, {6, 3}, {7, 6}, {1, 6}}},  // over comments and unticked rows, and around
               {kDownKey, 0, {{1, 3}, {3, 6}, {4, 6}, {6, 1}, {7, 1}}}};
  Start({"One", "@note", "Three", "&popup", "unticked", "Six", "@end"});
  user.ClickTick(window->lstWedding, 4);
  const auto press = [this](int from, int key, int shift) {
    SelectRow(from);
    user.Click(window->txtNext);
    user.Press(key, shift);
    return Row();
  };
  for (const auto& c : cases)
    for (const auto& [from, to] : c.fromTo)
      EXPECT_EQ(press(from, c.key, c.shift), to) << "from " << from << " with key " << c.key;
  for (const int key : {kLeftKey, kEndKey, kHomeKey, kUpKey, kDownKey}) {
    for (int shift = 0; shift < 8; ++shift) {
      if (key != kLeftKey && shift == (key <= kHomeKey ? kControlDown : 0)) continue;
      EXPECT_EQ(press(3, key, shift), 3) << "key " << key << " with shift " << shift;
    }
  }
}

TEST_F(Advance, KeysTakeAtMostAHundredStepsOverEmptyRows) {
  Lines rows(122, "@note");
  rows.front() = "first";
  rows.back() = "last";
  Start(rows);
  user.Click(window->txtNext);
  const std::pair<int, int> presses[] = {
      {kDownKey, 101}, {kDownKey, 122}, {kUpKey, 22}, {kUpKey, 1}, {kUpKey, 122}};
  for (const auto& [key, row] : presses) {
    user.Press(key);
    EXPECT_EQ(Row(), row);
  }
}

}  // namespace

}  // namespace troth
