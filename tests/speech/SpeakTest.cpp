// One sentence on its way into the game: leading Enter and pause, characters, keystrokes, and what becomes
// of a sentence when the game is missing, slow, full or dying.
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class Speaking : public SpeechTest {
 protected:
  // The pauses in ms before each character that the game heard, the first one apart.
  std::vector<std::uint32_t> Pauses() const {
    std::vector<std::uint32_t> pauses;
    for (std::size_t i = 1; i < game->heard.size(); ++i)
      pauses.push_back(game->heard[i].tick - game->heard[i - 1].tick);
    return pauses;
  }
};

TEST_F(Speaking, SendsALeadingEnterWhereItIsDue) {
  const struct {
    std::wstring text;
    bool autoterminate;
    std::string posts;
  } cases[] = {{L"Hi", true, "posts <13>Hi<13>"},       {L"Hi", false, "posts Hi<13>"},
               {L"/g Hi", true, "posts <13>/g Hi<13>"}, {L"/g Hi", false, "posts <13>/g Hi<13>"},
               {L"  /g  ", false, "posts <13>/g<13>"},  {L"  Hi  all ", false, "posts Hi  all<13>"},
               {L"Hi /g", false, "posts Hi /g<13>"},    {L"a{+}", true, "posts <13>a{+}<13>"}};
  StartGame();
  Start({"One.", "Two."});
  for (const auto& c : cases) {
    Check(window->MOptionsAuto, c.autoterminate);
    TypeOver(window->txtNext, c.text);
    Speak();
    EXPECT_EQ(TakeStory().at(1), c.posts);
  }
}

TEST_F(Speaking, PausesAfterTheLeadingEnterAndNowhereElse) {
  StartGame();
  Start({"One", "Two"});
  for (const std::uint32_t startTick : {1'000'000u, 0xFFFFFFFFu - 150u}) {
    desktop.time.SetTickCount(startTick);
    game->heard.clear();
    Speak();
    EXPECT_EQ(game->heard.at(0).tick, startTick);
    EXPECT_EQ(Pauses(), (std::vector<std::uint32_t>{300, 0, 0, 0}));
    EXPECT_EQ(desktop.time.TickCount(), startTick + 300);
  }
  Check(window->MOptionsAuto, false);
  game->heard.clear();
  Speak();
  EXPECT_EQ(Pauses(), (std::vector<std::uint32_t>{0, 0, 0}));
}

TEST_F(Speaking, PostsTheBytesOfTheCodePage) {
  StartGame();
  Start({"fianc\xE9 \x80", "Two."});
  Speak();
  TypeOver(window->txtNext, L"\u20AC\u00FF\u0152\u4E00");
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>fianc<233> <128><13>", kRaise,
                                "posts <13><128><255><140>?<13>", kEndOfScriptBox}));
}

TEST_F(Speaking, FindsTheGameForEachSentenceAgainTheFirstClassFirst) {
  HeadlessWindow& second = desktop.windows.Open(kSecondGameClass);
  Start({"One", "Two", "Three"});
  Speak();
  EXPECT_EQ(second.HeardText(), "\rOne\r");
  HeadlessWindow& first = desktop.windows.Open(kGameClass);
  desktop.windows.Open(L"Kestrel Moors Launcher");
  Speak();
  EXPECT_EQ(first.HeardText(), "\rTwo\r");
  first.alive = false;
  Speak();
  EXPECT_EQ(second.HeardText(), "\rOne\r\rThree\r");
  EXPECT_EQ(TakeStory().at(0), "raise Kestrel Moors Pale Light");
}

TEST_F(Speaking, WithoutAGameStopsTheRunShowsTheSentenceAndMovesOn) {
  const std::string box = "box information Can't speak, KM is not running :): sentence";
  StartDriver({"x", "original", "Three."});
  window->MOptionsLearning.SetChecked(true);
  for (const bool popup : {true, false}) {
    window->MOptionsPopup.SetChecked(popup);
    SelectRow(2);
    window->txtNext.SetText(L" sentence ");
    window->DoSpeechRow(L"");
    EXPECT_EQ(TakeStory(), popup ? (Lines{"stop", box}) : Lines{"stop"});
    EXPECT_EQ(Next(), "Three.");
    EXPECT_FALSE(program.ScriptNow.Dirty()) << "nothing was learned";
  }
}

TEST_F(Speaking, OfAGivenTextLeavesRowAndBoxAlone) {
  StartGame();
  Start({"One.", "Two.", "@end"});
  SelectRow(2);
  TypeOver(window->txtNext, L"half a sen");
  window->DoSpeechRow(L" /add ");
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>/add<13>"}));
  EXPECT_EQ(Row(), 2);
  EXPECT_EQ(Next(), "half a sen");
  // An end of the script that came about silently is not reported by it.
  SelectRow(3);
  Speak();
  EXPECT_EQ(Row(), 1);
  window->DoSpeechRow(L"/add");
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>/add<13>"}));
  game->alive = false;
  window->DoSpeechRow(L"/add");
  EXPECT_EQ(TakeStory(), Lines{"box information Can't speak, KM is not running :): /add"});
  EXPECT_EQ(Row(), 1);
}

TEST_F(Speaking, GoesOutAsKeystrokesWhileTheOptionIsOn) {
  StartGame();
  Start({"I do +1", "Two", "Three", "Four"});
  const auto markPause = [this] { desktop.time.After(299, [this] { desktop.journal.Add("..."); }); };
  Check(window->MOptionsTranslate, true);
  markPause();
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "keys {ENTER}", "...", "keys I do +1{ENTER}"}));
  Check(window->MOptionsAuto, false);
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "keys Two{ENTER}"}));
  markPause();
  TypeOver(window->txtNext, L"/g");
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "keys {ENTER}", "...", "keys /g{ENTER}"}));
  Check(window->MOptionsTranslate, false);
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts Four<13>", kEndOfScriptBox}));
}

TEST_F(Speaking, TranslatesTheSentenceBeforeAllElseWhileUnicodeIsOff) {
  StartGame();
  Start({"One.", "Two.", "Three."});
  program.UnicodeTable.LoadFrom("a=/a\r\nT=<T", desktop.text);
  window->MOptionsAuto.SetChecked(false);
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts One.<13>"}));
  window->MOptionsUnicode.SetChecked(false);
  window->DoSpeechRow(L" add ");
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>/add<13>"}));
  EXPECT_EQ(Next(), "Two.");
  game->alive = false;
  Speak();
  EXPECT_EQ(TakeStory(), Lines{"box information Can't speak, KM is not running :): <Two."});
}

// The pause serves the program's windows, so a sentence can come in the middle of another one's, but only
// between that one's leading Enter and its characters.
TEST_F(Speaking, LetsAnotherSentenceInDuringThePauseOnly) {
  StartGame();
  Start({"One", "Two", "Three"});
  desktop.time.After(100, [this] { window->DoSpeechRow(L"/add"); });
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>", kRaise, "posts <13>/add<13>One<13>"}));
  EXPECT_EQ(Row(), 2);
  desktop.time.After(299, [this] { Speak(); });
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>", kRaise, "posts <13>Two<13>Two<13>", kEndOfScriptBox}));

  game->capacity = 2;
  game->takesPerMs = 1;
  Check(window->MOptionsAuto, false);
  game->heard.clear();
  desktop.time.After(5, [this] { window->DoSpeechRow(L"meanwhile"); });
  TypeOver(window->txtNext, L"a slow game takes its time");
  Speak();
  desktop.time.Advance(0);
  EXPECT_EQ(game->HeardText(), "a slow game takes its time\rmeanwhile\r");
}

TEST_F(Speaking, SaysOnceThatAGameWithMoreRightsTakesNothing) {
  StartGame();
  game->hasMoreRights = true;
  Start({"One", "Two", "Three", "Four"});
  Check(window->MOptionsPopup, false);
  Speak();
  EXPECT_EQ(TakeStory(), Lines{kRaise});
  Check(window->MOptionsPopup, true);
  Speak();
  EXPECT_EQ(TakeStory(),
            (Lines{kRaise,
                   "box warning Trothline: Kestrel Moors does not take what Trothline types, because it runs "
                   "as administrator. Start the game as an ordinary program, or start Trothline as "
                   "administrator, too."}));
  Speak();
  EXPECT_EQ(TakeStory(), Lines{kRaise});
  EXPECT_EQ(Row(), 4);
}

TEST_F(Speaking, TypesNoKeysIntoAnotherWindow) {
  StartGame();
  game->refusesRaise = true;
  Start({"One", "Two", "Three"});
  Check(window->MOptionsTranslate, true);
  Speak();
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "box information Can't speak, KM is not running :): One"}));
  EXPECT_EQ(Row(), 2);
}

TEST_F(Speaking, NeverSendsWhatFollowsALostCharacter) {
  const struct {
    const char* what;
    std::size_t capacity;
    std::size_t diesAfter;
    int diesInMs;
    std::string heard;
  } cases[] = {{"dies in the text", 100, 4, 0, "\rOne"},
               {"dies with the leading Enter", 100, 1, 0, "\r"},
               {"dies in the pause", 100, 100, 50, "\r"},
               {"hangs in the text", 3, 100, 0, "\rOn"},
               {"hangs before the closing Enter", 4, 100, 0, "\rOne"},
               {"hangs from the start", 0, 100, 0, ""}};
  Start({"One", "Two"});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    SelectRow(1);
    StartGame();
    game->capacity = c.capacity;
    game->diesAfter = c.diesAfter;
    game->takesPerMs = 0;
    if (c.diesInMs > 0) desktop.time.After(c.diesInMs, [this] { game->alive = false; });
    const std::uint32_t start = desktop.time.TickCount();
    Speak();
    EXPECT_EQ(game->HeardText(), c.heard);
    EXPECT_LE(desktop.time.TickCount() - start, 2u * WindowService::kPatienceMs + 400u);
    EXPECT_EQ(Row(), 2);
    game->alive = false;
  }
  EXPECT_TRUE(desktop.dialogs.Shown().empty());
}

}  // namespace

}  // namespace troth
