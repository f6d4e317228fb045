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
  static bool Saves(const Lines& story) {
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
  EXPECT_EQ(TakeStory(), (Lines{"box information Trothline: You cannot run two instances of Trothline at a "
                                "same time",
                                "end 0"}));
  EXPECT_EQ(desktop.dialogs.Shown().front().buttons, BoxButtons::Ok);
  EXPECT_TRUE(Windows().empty());
}

TEST_F(LifeTest, TheVeryFirstRunGreetsThenShowsTheNewsThenWorks) {
  bool sawNews = false;
  desktop.forms.WhenModal(L"frmIntro", [&] {
    sawNews = true;
    EXPECT_EQ(Windows(), (Lines{"frmIntro"}));
    EXPECT_FALSE(Main().Visible());
    EXPECT_FALSE(program->MainWindowShown);
    user.Click(Intro().cmdOK);
  });
  Run([&] {
    EXPECT_EQ(Windows(), (Lines{"frmTip"}));
    EXPECT_EQ(program->Opened<frmTroth>(), nullptr);
    EXPECT_TRUE(TakeStory().empty());
    user.Click(Tip().cmdOK);
    EXPECT_TRUE(sawNews);
    EXPECT_EQ(Windows(), (Lines{"frmIndex", "frmTroth"}));
    EXPECT_TRUE(program->MainWindowShown);
    EXPECT_EQ(program->Opened<frmTip>(), nullptr);
    EXPECT_EQ(program->Opened<frmIntro>(), nullptr);
    EXPECT_EQ(Place(), (Point{0, 0}));
    EXPECT_EQ(program->SpeechInterval, 5000);
    EXPECT_EQ(program->TopMostState, Stacking::TopMost);
    EXPECT_EQ(program->HelpFile, L"C:\\Games\\Trothline\\Troth.hlp");
    EXPECT_EQ(Main().lstWedding.Count(), 0);
    EXPECT_EQ(TakeStory(), (Lines{"save Troth\\Options\\Last Used Version=" + Readable(version)}));
    user.Choose(Main().MFileQuit);
  });
  EXPECT_EQ(program->Opened<frmTroth>(), nullptr);
  for (const wchar_t* key : {L"On Top", L"Popup Messages", L"Autoterminate Pending Speech"})
    EXPECT_EQ(Stored(key), L"1");
  for (const wchar_t* key : {L"Vertical Layout", L"Skip Emote", L"Skip Party Commands", L"X Position"})
    EXPECT_EQ(Stored(key), L"0");
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
    SCOPED_TRACE(Readable(Stored(L"Last Installed Version")));
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

TEST_F(LifeTest, WithTipsOffTheTipWindowDoesNothingButHandOver) {
  files.Put(kTipPath, "A tip.\r\n");
  desktop.settings.Put(L"TrothAutoPatch", L"Options", L"ProxyName", L"gate:8080");
  for (const wchar_t* off : {L"0", L"", L"no", L"00"}) {
    Store(L"Show Tips at Startup", off);
    Store(L"Last Installed Version", L"");
    desktop.forms.WhenModal(L"frmIntro", [&] {
      EXPECT_EQ(Windows(), (Lines{"frmIntro"}));
      user.Click(Intro().cmdOK);
    });
    Run([&] {
      EXPECT_EQ(Windows(), (Lines{"frmIndex", "frmTroth"}));
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
               {L"-300", L"90", {0, 90}},
               {L"1234.9", L"15.5", {1234, 15}},
               {L"", L"left", {0, 0}}};
  for (const auto& each : cases) {
    SCOPED_TRACE(Readable(each.x) + " " + Readable(each.y));
    Store(L"X Position", each.x);
    Store(L"Y Position", each.y);
    RunMain([&] {
      EXPECT_EQ(Place(), each.place);
      Main().MoveTo({-450, each.place.top + 15});  // half out of the screen
    });
    EXPECT_EQ(Stored(L"X Position"), L"-450");
    EXPECT_EQ(Stored(L"Y Position"), std::to_wstring(each.place.top + 15));
  }
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
    EXPECT_TRUE(Windows().empty());
  });
  const Lines bySession = TakeStory();
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
      EXPECT_EQ(Windows().empty(), ends);
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
  } cases[] = {{{701, 601}, {300, 200}, {700, 600}},
               {{700, 600}, {300, 200}, {700, 600}},
               {{-5, -5}, {1000, 800}, {0, 0}},
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
    SCOPED_TRACE(Readable(option.key));
    for (const auto& reading : readings) {
      Store(option.key, reading.stored);
      option.on = reading.on;
      RunMain([&] {
        for (const auto& each : options)
          EXPECT_EQ((Main().*each.item).Checked(), each.on) << Readable(each.key);
        // What the user changes is what is kept.
        if (!(Main().*option.item).Enabled()) return;
        user.Choose(Main().*option.item);
        option.on = !option.on;
      });
      for (const auto& each : options) EXPECT_EQ(Stored(each.key), each.on ? L"1" : L"0");
    }
  }
}

TEST_F(LifeTest, TheLastScriptIsKeptAsLongAsItIsThere) {
  files.Put(kScript, "Welcome.\r\nSpeak now.");
  Store(L"Last Script", kScript);
  RunMain([&] {
    EXPECT_EQ(Main().lstWedding.Count(), 2);
    EXPECT_EQ(Main().lstWedding.Index(), 0);
    EXPECT_EQ(Main().txtNext.Text(), L"Welcome.");
  });
  EXPECT_EQ(Stored(L"Last Script"), kScript);
  files.Remove(kScript);
  RunMain([&] { EXPECT_EQ(Main().lstWedding.Count(), 0); });
  EXPECT_EQ(Stored(L"Last Script"), L"");
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
        const Lines story = TakeStory();
        ASSERT_FALSE(story.empty());
        EXPECT_EQ(story[0], question);
        EXPECT_EQ(story.size() > 1 && story[1].starts_with("ask "), answer == BoxAnswer::Yes);
        EXPECT_EQ(Saves(story), answer != BoxAnswer::Cancel);
        EXPECT_EQ(Windows(), (answer == BoxAnswer::Cancel ? Lines{"frmTroth"} : Lines{}));
        if (answer == BoxAnswer::Cancel) desktop.dialogs.Answer(BoxAnswer::No);
      });
    }
  }
}

TEST_F(LifeTest, StartsWithTheScriptThatItIsGivenAndTakesDroppedOnes) {
  const std::wstring given = L"D:\\My Wedding.txt";
  files.Put(kScript, "Welcome.");
  files.Put(given, "Given.");
  files.Put(L"D:\\photo.jpg", "?");
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
  for (const std::wstring& path : {given, dropped}) files.Put(path, "caf\xC3\xA9\r\n");
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
