// How a run comes up and goes down: which windows in which order, what is read, asked and kept.
#include "core/ScreenPlace.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

constexpr wchar_t kScript[] = L"C:\\Games\\Trothline\\wedscripts\\Vows.txt";

// The main window of the headless desktop is 8485 by 3960 twips, its screen 15360 by 11520.
constexpr int kRightmost = 6875;
constexpr int kLowest = 7560;

class LifeTest : public RunTest {
 protected:
  // Whether something was saved since the last look at the story.
  static bool Saves(const Story& story) {
    for (const std::string& line : story)
      if (line.starts_with("save ")) return true;
    return false;
  }

  void CloseIntro(bool neverAgain) {
    desktop.forms.WhenModal(L"frmIntro", [this, neverAgain] {
      if (neverAgain) user.Click(Intro().chkNeverAgain);
      user.Click(Intro().cmdOK);
    });
  }

  Point Place() {
    const Rect outer = Main().OuterBounds();
    return {outer.left, outer.top};
  }
};

TEST_F(LifeTest, ASecondInstanceSaysSoAndEndsAtOnce) {
  desktop.process.isSecondInstance = true;
  program.emplace(platform);
  try {
    RunProgram(*program);
    FAIL() << "the process goes on";
  } catch (const ProcessEnded& end) {
    EXPECT_EQ(end.exitCode, 0);
  }
  EXPECT_EQ(TakeStory(), (Story{"box information Trothline: You cannot run two instances of Trothline at a "
                                "same time",
                                "end 0"}));
  EXPECT_EQ(desktop.dialogs.Shown().front().buttons, BoxButtons::Ok);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(LifeTest, TheVeryFirstRunGreetsThenShowsTheNewsThenWorks) {
  bool sawNews = false;
  desktop.forms.WhenModal(L"frmIntro", [&] {
    sawNews = true;
    EXPECT_EQ(Shown(), (Story{"frmIntro"}));
    EXPECT_FALSE(Main().Visible());
    EXPECT_FALSE(program->MainWindowShown);
    user.Click(Intro().cmdOK);
  });
  Run([&] {
    EXPECT_EQ(Shown(), (Story{"frmTip"}));
    EXPECT_EQ(program->Opened<frmTroth>(), nullptr);
    EXPECT_TRUE(TakeStory().empty());
    user.Click(Tip().cmdOK);
    EXPECT_TRUE(sawNews);
    EXPECT_EQ(Shown(), (Story{"frmIndex", "frmTroth"}));
    EXPECT_TRUE(program->MainWindowShown);
    EXPECT_EQ(program->Opened<frmTip>(), nullptr);
    EXPECT_EQ(program->Opened<frmIntro>(), nullptr);
    EXPECT_EQ(Place(), (Point{0, 0}));
    EXPECT_EQ(program->SpeechInterval, 5000);
    EXPECT_EQ(program->TopMostState, Stacking::TopMost);
    EXPECT_EQ(program->HelpFile, L"C:\\Games\\Trothline\\Troth.hlp");
    EXPECT_TRUE(Main().MOptionsTop.Checked());
    EXPECT_FALSE(Main().MOptionsVertical.Checked());
    EXPECT_TRUE(Main().MOptionsPopup.Checked());
    EXPECT_TRUE(Main().MOptionsAuto.Checked());
    EXPECT_FALSE(Main().MOptionsEmote.Checked());
    EXPECT_FALSE(Main().MOptionsCounselor.Checked());
    EXPECT_EQ(Main().lstWedding.Count(), 0);
    EXPECT_EQ(TakeStory(),
              (Story{"save Troth\\Options\\Last Used Version=" + HeadlessJournal::Readable(version)}));
    user.Choose(Main().MFileQuit);
  });
  EXPECT_EQ(program->Opened<frmTroth>(), nullptr);
  EXPECT_EQ(Stored(L"X Position"), L"0");
  EXPECT_EQ(Stored(L"Y Position"), L"0");
  EXPECT_EQ(Stored(L"On Top"), L"1");
  EXPECT_EQ(Stored(L"Vertical Layout"), L"0");
  EXPECT_EQ(Stored(L"Popup Messages"), L"1");
  EXPECT_EQ(Stored(L"Autoterminate Pending Speech"), L"1");
  EXPECT_EQ(Stored(L"Skip Emote"), L"0");
  EXPECT_EQ(Stored(L"Skip Party Commands"), L"0");
  EXPECT_EQ(Stored(L"Last Script"), L"");
  EXPECT_EQ(Stored(L"Last Installed Version"), L"(nothing)");
  EXPECT_EQ(Stored(L"Show Tips at Startup"), L"(nothing)");
}

TEST_F(LifeTest, TheNewsComeBackUntilTheyAreTickedAwayForThisVersion) {
  const struct {
    const wchar_t* stored;
    bool tick;
    std::wstring storedThen;
  } runs[] = {{nullptr, false, L"(nothing)"},
              {nullptr, true, version},
              {L"3.0.0", false, L"3.0.0"},  // ticked for another version
              {L"3.0.0", true, version},
              {L" 3.0.0", false, L" 3.0.0"}};
  Store(L"Show Tips at Startup", L"0");
  for (const auto& run : runs) {
    if (run.stored) Store(L"Last Installed Version", run.stored);
    SCOPED_TRACE(HeadlessJournal::Readable(Stored(L"Last Installed Version")));
    bool sawNews = false;
    desktop.forms.WhenModal(L"frmIntro", [&] {
      sawNews = true;
      if (run.tick) user.Click(Intro().chkNeverAgain);
      user.CloseWindow(Intro());
    });
    Run([&] { user.Choose(Main().MFileQuit); });
    EXPECT_TRUE(sawNews);
    EXPECT_EQ(Stored(L"Last Installed Version"), run.storedThen);
  }
}

// Nobody would close the news here: the run would fail with their name.
TEST_F(LifeTest, TheSecondRunGoesStraightToWork) {
  CloseIntro(true);
  Run([&] {
    user.Click(Tip().chkLoadTipsAtStartup);
    user.Press(kEscapeKey);
    user.Choose(Main().MFileQuit);
  });
  TakeStory();
  Run([&] {
    EXPECT_EQ(Shown(), (Story{"frmIndex", "frmTroth"}));
    EXPECT_TRUE(TakeStory().empty());
    user.CloseWindow(Main());
  });
}

TEST_F(LifeTest, WithTipsOffTheTipWindowDoesNothingButHandOver) {
  desktop.files.Put(kTipPath, "A tip.\r\n");
  desktop.settings.Write(L"TrothAutoPatch", L"Options", L"ProxyName", L"gate:8080");
  for (const wchar_t* off : {L"0", L"", L"no", L"00"}) {
    Store(L"Show Tips at Startup", off);
    Store(L"Last Installed Version", L"");
    desktop.forms.WhenModal(L"frmIntro", [&] {
      EXPECT_EQ(Shown(), (Story{"frmIntro"}));
      user.Click(Intro().cmdOK);
    });
    Run([&] {
      EXPECT_EQ(Shown(), (Story{"frmIndex", "frmTroth"}));
      EXPECT_TRUE(program->MainWindowShown);
      EXPECT_EQ(program->Opened<frmTip>(), nullptr);
      EXPECT_EQ(program->Patch.proxyName, L"");
      user.Choose(Main().MFileQuit);
    });
    EXPECT_EQ(Stored(L"Show Tips at Startup"), off);
  }
}

TEST_F(LifeTest, StoredPlacesAreBroughtIntoTheScreen) {
  const struct {
    const wchar_t* x;
    const wchar_t* y;
    Point place;
  } cases[] = {{L"300", L"4500", {300, 4500}},
               {L"6875", L"7560", {kRightmost, kLowest}},
               {L"7111", L"7576", {kRightmost, kLowest}},
               {L"99999999999", L"2147483647", {kRightmost, kLowest}},
               {L"-1", L"-2147483648", {0, 0}},
               {L"-300", L"90", {0, 90}},
               {L"1234.9", L"15.5", {1234, 15}},
               {L"", L"left", {0, 0}},
               {L"  7 apples", L"1e9", {7, 1}}};
  for (const auto& each : cases) {
    SCOPED_TRACE(HeadlessJournal::Readable(each.x) + " " + HeadlessJournal::Readable(each.y));
    Store(L"X Position", each.x);
    Store(L"Y Position", each.y);
    RunMain([&] { EXPECT_EQ(Place(), each.place); });
    EXPECT_EQ(Stored(L"X Position"), std::to_wstring(each.place.left));
    EXPECT_EQ(Stored(L"Y Position"), std::to_wstring(each.place.top));
  }
}

TEST_F(LifeTest, AMovedWindowComesBackWhereItWas) {
  RunMain([&] { Main().MoveTo({1005, 2010}); });
  EXPECT_EQ(Stored(L"X Position"), L"1005");
  RunMain([&] {
    EXPECT_EQ(Place(), (Point{1005, 2010}));
    Main().MoveTo({-450, 9000});  // half out of the screen
  });
  EXPECT_EQ(Stored(L"X Position"), L"-450");
  EXPECT_EQ(Stored(L"Y Position"), L"9000");
  RunMain([&] { EXPECT_EQ(Place(), (Point{0, kLowest})); });
}

TEST_F(LifeTest, AWindowComesBackToItsMonitorOrToTheNearestIfThatIsGone) {
  const Monitor first = desktop.forms.monitors.front();
  const Monitor second{.area = {15360, 0, 28800, 16200}, .workArea = {15360, 0, 28800, 15600}};
  desktop.forms.monitors = {first, second};
  RunMain([&] { Main().MoveTo({30000, 9000}); });
  RunMain([&] { EXPECT_EQ(Place(), (Point{30000, 9000})); });
  desktop.forms.monitors = {first};
  RunMain([&] { EXPECT_EQ(Place(), (Point{kRightmost, kLowest})); });
}

TEST_F(LifeTest, TheEndOfTheSessionWritesWhatANormalEndWrites) {
  RunMain([&] {
    user.Choose(Main().MOptionsEmote);
    user.Choose(Main().MViewButtonBar);
    Main().MoveTo({900, 600});
    TakeStory();
    EXPECT_EQ(desktop.forms.EndSession(), std::vector<std::wstring>{});
    EXPECT_TRUE(Shown().empty());
  });
  const Story bySession = TakeStory();
  EXPECT_EQ(Stored(L"X Position"), L"900");
  EXPECT_EQ(Stored(L"Skip Emote"), L"1");
  RunMain([&] {
    user.Click(Main().txtNext);  // the bar has come back
    Main().MoveTo({900, 600});
    TakeStory();
  });
  EXPECT_EQ(TakeStory(), bySession);
}

TEST_F(LifeTest, TheSessionWaitsForLearnedPauses) {
  enum class Session { StillEnds, GoesOn, IsForced };
  const struct {
    Session session;
    BoxAnswer answer;
    bool ends;
  } cases[] = {{Session::StillEnds, BoxAnswer::No, true},
               {Session::StillEnds, BoxAnswer::Cancel, false},
               {Session::GoesOn, BoxAnswer::No, false},
               {Session::IsForced, BoxAnswer::Cancel, true}};
  for (const auto& [session, answer, ends] : cases) {
    SCOPED_TRACE(static_cast<int>(session));
    RunMain([&, session = session, answer = answer, ends = ends] {
      program->ScriptNow.Dirty(true);
      TakeStory();
      EXPECT_EQ(desktop.forms.EndSession(),
                std::vector<std::wstring>{L"The pauses that Trothline has learned have not been saved."});
      EXPECT_TRUE(TakeStory().empty()) << "the system waits for the answer";
      desktop.dialogs.Answer(answer);
      desktop.dialogs.WhileNextBox([&, session] {
        if (session == Session::GoesOn) desktop.forms.KeepSession();
        if (session == Session::IsForced) desktop.forms.ForceSessionEnd();
      });
      desktop.time.Advance(1);
      EXPECT_EQ(desktop.dialogs.Shown().back().buttons, BoxButtons::YesNoCancel);
      EXPECT_EQ(Saves(TakeStory()), ends);
      EXPECT_EQ(Shown().empty(), ends);
      if (!ends) program->ScriptNow.Dirty(false);
    });
  }
}

TEST_F(LifeTest, AWindowLargerThanTheScreenEndsLeftOfItAndAbove) {
  const Size screen{1000, 800};
  const struct {
    Point place;
    Size window;
    Point brought;
  } cases[] = {{{0, 0}, {300, 200}, {0, 0}},           {{701, 601}, {300, 200}, {700, 600}},
               {{700, 600}, {300, 200}, {700, 600}},   {{-5, -5}, {1000, 800}, {0, 0}},
               {{5, 5}, {1000, 800}, {0, 0}},          {{0, 0}, {1100, 900}, {-100, -100}},
               {{-500, 50}, {1100, 900}, {-100, -100}}};
  for (const auto& each : cases)
    EXPECT_EQ(IntoScreen(each.place, each.window, screen), each.brought)
        << each.place.left << " " << each.window.width;
}

TEST_F(LifeTest, OptionsAreKeptAsOneOrZeroAndComeBack) {
  struct {
    const wchar_t* key;
    MenuItem MainWindow::*item;
    bool on;
  } options[] = {{L"On Top", &MainWindow::MOptionsTop, true},
                 {L"Vertical Layout", &MainWindow::MOptionsVertical, false},
                 {L"Popup Messages", &MainWindow::MOptionsPopup, true},
                 {L"Autoterminate Pending Speech", &MainWindow::MOptionsAuto, true},
                 {L"Skip Emote", &MainWindow::MOptionsEmote, false},
                 {L"Skip Party Commands", &MainWindow::MOptionsCounselor, false}};
  const struct {
    const wchar_t* stored;
    bool on;
  } readings[] = {{L"-1", true}, {L"0", false}};
  for (auto& option : options) {
    SCOPED_TRACE(HeadlessJournal::Readable(option.key));
    for (const auto& reading : readings) {
      Store(option.key, reading.stored);
      option.on = reading.on;
      RunMain([&] {
        for (const auto& each : options)
          EXPECT_EQ((Main().*each.item).Checked(), each.on) << HeadlessJournal::Readable(each.key);
        // What the user changes is what is kept.
        if (!(Main().*option.item).Enabled()) return;
        user.Choose(Main().*option.item);
        option.on = !option.on;
      });
      for (const auto& each : options) EXPECT_EQ(Stored(each.key), each.on ? L"1" : L"0");
    }
  }
}

TEST_F(LifeTest, OddValuesNeverStopTheStart) {
  const std::wstring odd[] = {
      L"",           L"text",           std::wstring(10000, L'x'), std::wstring(10000, L'9'),
      L"-7",         L"99999999999",    L"-99999999999",           L"2.5",
      L"  7 apples", L"\x17E\r\n\t\"\\"};
  const wchar_t* const keys[] = {L"Last Used Version", L"Last Script",   L"X Position",
                                 L"Index Y Position",  L"Index Visible", L"Show Tips at Startup"};
  for (const std::wstring& value : odd) {
    SCOPED_TRACE(HeadlessJournal::Readable(value.substr(0, 20)));
    for (const wchar_t* key : keys) Store(key, value);
    CloseIntro(false);
    Run([&] {
      if (program->Opened<frmTip>()) user.Click(Tip().cmdOK);
      EXPECT_EQ(Shown().back(), "frmTroth");
      const Point place = Place();
      EXPECT_TRUE(place.left >= 0 && place.left <= kRightmost && place.top >= 0 && place.top <= kLowest);
      EXPECT_EQ(Main().lstWedding.Count(), 0);
      user.Choose(Main().MFileQuit);
    });
  }
}

TEST_F(LifeTest, AStoreThatRefusesEveryWriteIsPassedOver) {
  desktop.settings.RefuseWrites(true);
  CloseIntro(true);
  Run([&] {
    user.Click(Tip().chkLoadTipsAtStartup);
    user.Click(Tip().cmdOK);
    user.Choose(Main().MFileQuit);
  });
  for (const std::string& line : TakeStory()) EXPECT_TRUE(line.starts_with("save ")) << line;
  EXPECT_EQ(Stored(L"Last Used Version"), L"(nothing)");
}

TEST_F(LifeTest, TheLastScriptIsKeptAsLongAsItIsThere) {
  desktop.files.Put(kScript, "Welcome.\r\nSpeak now.");
  Store(L"Last Script", kScript);
  RunMain([&] {
    EXPECT_EQ(Main().lstWedding.Count(), 2);
    EXPECT_EQ(Main().lstWedding.Index(), 0);
    EXPECT_EQ(Main().txtNext.Text(), L"Welcome.");
  });
  EXPECT_EQ(Stored(L"Last Script"), kScript);
  desktop.files.Remove(kScript);
  RunMain([&] { EXPECT_EQ(Main().lstWedding.Count(), 0); });
  EXPECT_EQ(Stored(L"Last Script"), L"");
}

TEST_F(LifeTest, AnUnreadableScriptEndsTheRunAndSavesNothing) {
  desktop.files.Put(kScript, "Welcome.");
  desktop.files.RefuseReading(kScript);
  Store(L"Last Script", kScript);
  Store(L"Last Used Version", version);
  EXPECT_THROW(RunMain([] {}), ProcessEnded);
  EXPECT_FALSE(Saves(TakeStory()));
  EXPECT_EQ(Stored(L"Last Script"), kScript);
}

TEST_F(LifeTest, AModifiedScriptIsAskedAboutBeforeTheEnd) {
  const std::string question =
      "box question Trothline: Your currently loaded script has been modified while in learning mode. Do you "
      "want to save it?";
  for (const bool byMenu : {true, false}) {
    for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel}) {
      SCOPED_TRACE(static_cast<int>(answer));
      RunMain([&] {
        program->ScriptNow.Dirty(true);
        program->ScriptNow.sFileName(kScript);
        TakeStory();
        desktop.dialogs.Answer(answer);
        if (answer == BoxAnswer::Yes) desktop.dialogs.AnswerText(std::nullopt);
        if (byMenu)
          user.Choose(Main().MFileQuit);
        else
          user.CloseWindow(Main());
        EXPECT_EQ(desktop.dialogs.Shown().back().buttons, BoxButtons::YesNoCancel);
        const Story story = TakeStory();
        ASSERT_FALSE(story.empty());
        EXPECT_EQ(story[0], question);
        EXPECT_EQ(story.size() > 1 && story[1].starts_with("ask "), answer == BoxAnswer::Yes);
        EXPECT_EQ(Saves(story), answer != BoxAnswer::Cancel);
        EXPECT_EQ(Shown(), (answer == BoxAnswer::Cancel ? Story{"frmTroth"} : Story{}));
        if (answer != BoxAnswer::Cancel) return;
        // All runs on as it was, and asks again the next time.
        user.Choose(Main().MOptionsEmote);
        EXPECT_TRUE(Main().MOptionsEmote.Checked());
        user.Choose(Main().MOptionsEmote);
        desktop.dialogs.Answer(BoxAnswer::No);
      });
    }
  }
}

TEST_F(LifeTest, StartsWithTheScriptThatItIsGivenAndTakesDroppedOnes) {
  const std::wstring given = L"D:\\My Wedding.txt";
  desktop.files.Put(kScript, "Welcome.");
  desktop.files.Put(given, "Given.");
  desktop.files.Put(L"D:\\photo.jpg", "?");
  for (const std::wstring& path : {given, std::wstring(L"D:\\photo.jpg")}) {
    Store(L"Last Script", kScript);
    Store(L"Show Tips at Startup", L"0");
    Store(L"Last Installed Version", version);
    program.emplace(platform);
    program->StartScript = path;
    desktop.time.After(100, [&] {
      EXPECT_EQ(Main().txtNext.Text(), path == given ? L"Given." : L"Welcome.");
      user.DropFile(Main(), L"D:\\photo.jpg");
      user.DropFile(Main(), given);
      EXPECT_EQ(Main().txtNext.Text(), L"Given.");
      Main().MFileScript.SetEnabled(false);
      user.DropFile(Main(), kScript);
      EXPECT_EQ(Main().txtNext.Text(), L"Given.") << "not during unattended speech";
      EXPECT_EQ(desktop.dialogs.Shown().back().text,
                L"D:\\photo.jpg is not a script that can be read. The name of a script ends in .txt.");
      user.Choose(Main().MFileQuit);
    });
    RunProgram(*program);
  }
  EXPECT_EQ(desktop.dialogs.Shown().size(), 3u);
}

TEST_F(LifeTest, OffersToConvertTheScriptThatItIsGivenAndDroppedOnes) {
  const std::wstring given = L"D:\\Given.txt";
  const std::wstring dropped = L"D:\\Dropped.txt";
  for (const std::wstring& path : {given, dropped}) desktop.files.Put(path, "caf\xC3\xA9\r\n");
  Store(L"Show Tips at Startup", L"0");
  Store(L"Last Installed Version", version);
  program.emplace(platform);
  program->StartScript = given;
  desktop.dialogs.Answer(BoxAnswer::Yes);
  desktop.time.After(100, [&] {
    EXPECT_EQ(Main().txtNext.Text(), L"caf\xE9");
    desktop.dialogs.Answer(BoxAnswer::Yes);
    user.DropFile(Main(), dropped);
    EXPECT_EQ(Main().txtFile.Text(), L"Dropped");
    EXPECT_EQ(Main().txtNext.Text(), L"caf\xE9");
    user.Choose(Main().MFileQuit);
  });
  RunProgram(*program);
  EXPECT_EQ(desktop.dialogs.Shown().size(), 2u);
}

}  // namespace
}  // namespace troth
