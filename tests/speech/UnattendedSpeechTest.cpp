// A script that speaks by itself: how a run is started, at what times it speaks, and what ends it.
#include "speech/UnattendedSpeech.h"

#include "livetools/frmPopup.h"
#include "speech/frmMacro.h"
#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class Unattended : public SpeechTest {
 protected:
  // Opens the dialog, puts the interval in and presses OK; gives up where that is refused.
  void StartRun(const std::wstring& interval) {
    desktop.forms.WhenModal(L"frmMacro", [this, interval] {
      auto& dialog = *program.Opened<frmMacro>();
      shownInterval = dialog.txtMS.Text();
      TypeOver(dialog.txtMS, interval);
      user.Press(kEnterKey);
      isRefused = dialog.Visible();
      if (isRefused) user.Press(kEscapeKey);
    });
    user.Choose(window->MOptionsUnattanded);
  }

  bool Runs() const { return window->tmrSpeak.Enabled(); }

  // What the run changes about the controls, in one line.
  std::string State() const {
    const std::pair<const char*, bool> marks[] = {
        {" running", Runs()},
        {" clock", window->lblDebug.Visible()},
        {" black on yellow",
         window->txtNext.BackColor() == Rgb(255, 255, 0) && window->txtNext.ForeColor() == Rgb(0, 0, 0)},
        {" next", window->txtNext.Enabled()},
        {" couple", window->txtGroom.Enabled() && window->txtBride.Enabled()},
        {" browse", window->cmdBrowse.Enabled() && window->MFileScript.Enabled()},
        {" define", window->MOptionsDefine.Enabled()},
        {" restore", window->MOptionsRestore.Enabled()},
        {" about", window->MFileAbout.Enabled()},
        {" learning", window->MOptionsLearning.Enabled()},
        {" learns", window->MOptionsLearning.Checked() || window->tmrLearn.Enabled()}};
    std::string state = Readable(window->cmdSpeak.Caption() + L' ' + window->MOptionsUnattanded.Caption());
    for (const auto& [mark, holds] : marks)
      if (holds) state += mark;
    return state;
  }

  std::wstring shownInterval;
  bool isRefused = false;
};

TEST_F(Unattended, IsStartedByAnIntervalWithinTheLimits) {
  const std::string box = "box information Trothline: Error: cannot set a speech interval ";
  const struct {
    const wchar_t* typed;
    int intervalMs;  // 0 where it is refused
    std::string why = {};
  } cases[] = {{L"1999", 0, "lower than 2000 ms"},
               {L"abc", 0, "lower than 2000 ms"},
               {L"1999.5", 2000},
               {L"30000", 30000},
               {L"30001", 0, "greater than 30000 ms"}};
  Store(L"Speech Interval", L"500");
  Start({"One"});
  std::wstring present = L"1000";
  for (const auto& c : cases) {
    TakeStory();
    StartRun(c.typed);
    EXPECT_EQ(shownInterval, present);
    EXPECT_EQ(TakeStory(), c.intervalMs > 0 ? Lines{} : Lines{box + c.why});
    EXPECT_EQ(Runs(), c.intervalMs > 0);
    EXPECT_EQ(isRefused, !Runs()) << "the dialog stays open";
    if (!Runs()) continue;
    present = std::to_wstring(c.intervalMs);
    EXPECT_EQ(program.SpeechInterval, c.intervalMs);
    EXPECT_EQ(Stored(L"Speech Interval"), present);
    window->StopAutoSpeech();
  }
}

TEST_F(Unattended, DialogIsInFrontAndDiscardsWhatWasTypedOver) {
  Start({"One"});
  TypeOver(window->txtNext, L"typed");
  desktop.forms.WhenModal(L"frmMacro", [this] {
    EXPECT_FALSE(desktop.forms.Find(*window)->IsTopMost());
    EXPECT_EQ(program.Opened<frmMacro>()->Options().helpContext, 1);
    user.Press(kEscapeKey);
  });
  user.Choose(window->MOptionsUnattanded);
  EXPECT_TRUE(desktop.forms.Find(*window)->IsTopMost());
  EXPECT_EQ(Next(), "One");
  EXPECT_FALSE(Runs());
}

TEST_F(Unattended, EnablesAgainWhatItDisabledHoweverItEnds) {
  const std::pair<const char*, std::function<void()>> ends[] = {
      {"button", [this] { Speak(); }},
      {"menu", [this] { user.Choose(window->MOptionsUnattanded); }},
      {"end of script", [this] { desktop.time.Advance(4000); }},
      {"game gone", [this] {
         game->alive = false;
         desktop.time.Advance(2000);
       }}};
  Start({"One", "Two"});
  for (const bool complete : {false, true}) {
    window->txtGroom.SetEnabled(complete);
    window->txtBride.SetEnabled(complete);
    window->cmdBrowse.SetEnabled(complete);
    window->MFileScript.SetEnabled(complete);
    window->MOptionsDefine.SetEnabled(complete);
    const std::string idle = std::string("&Speak &Unattended Speech... next") +
                             (complete ? " couple browse define" : "") + " restore about learning";
    for (const auto& [what, end] : ends) {
      SCOPED_TRACE(what);
      StartGame();
      Check(window->MOptionsLearning, true);
      SelectRow(1);
      StartRun(L"2000");
      EXPECT_EQ(State(), "&Stop Stop &Unattended Speech running clock black on yellow");
      end();
      EXPECT_EQ(State(), idle);
      game->alive = false;
    }
  }
}

TEST_F(Unattended, WaitsTheRowsOwnDelayOrElseTheInterval) {
  StartGame();
  Start({"One", "$1999$,Two", "$2000$,Three", "@note", "$3100$,Four", "Five", "$2000$,unticked", "Eight"});
  user.ClickTick(window->lstWedding, 6);
  for (const bool autoterminate : {false, true}) {
    Check(window->MOptionsAuto, autoterminate);
    game->heard.clear();
    StartRun(L"30000");
    std::uint32_t last = desktop.time.TickCount();
    desktop.time.Advance(200);
    EXPECT_EQ(window->lblDebug.Caption(), L"29800");
    desktop.time.Advance(200'000);
    // The pause after a leading Enter lies within the wait.
    std::vector<std::uint32_t> waits;
    bool isFirst = true;
    for (const HeardCharacter& heard : game->heard) {
      if (isFirst) waits.push_back(heard.tick - std::exchange(last, heard.tick));
      isFirst = heard.code == 13 && (!autoterminate || heard.tick != last);
    }
    EXPECT_EQ(waits, (std::vector<std::uint32_t>{30000, 30000, 2000, 3200, 30000, 30000}));
    EXPECT_FALSE(Runs());
    EXPECT_EQ(TakeStory().back(), kEndOfScriptBox);
  }
}

TEST_F(Unattended, CountsOnWhereAnotherRowIsChosenAndWhereItStoppedBefore) {
  StartGame();
  Start({"@silent", "Two", "Three", "$2000$,Four"});
  Check(window->MOptionsAuto, false);
  StartRun(L"5000");
  desktop.time.Advance(5000);  // a row without a sentence takes its wait as well
  EXPECT_EQ(Row(), 2);
  desktop.time.Advance(1800);
  EXPECT_EQ(window->lblDebug.Caption(), L"3200");
  SelectRow(4);
  desktop.time.Advance(200);
  EXPECT_EQ(game->HeardText(), "Four\r");
  EXPECT_FALSE(Runs());
  SelectRow(3);
  StartRun(L"5000");
  desktop.time.Advance(4800);
  Speak();
  EXPECT_EQ(Row(), 3);
  StartRun(L"5000");
  desktop.time.Advance(4800);
  EXPECT_EQ(game->HeardText(), "Four\r");
  desktop.time.Advance(200);
  EXPECT_EQ(game->HeardText(), "Four\rThree\r");
}

TEST_F(Unattended, KeepsItsPaceAfterATickThatWasLate) {
  StartGame();
  Start({"One", "Two", "Three", "Four"});
  Check(window->MOptionsAuto, false);
  StartRun(L"2000");
  const std::uint32_t start = desktop.time.TickCount();
  desktop.time.Advance(1950);
  desktop.time.Sleep(120);  // the program is blocked when the first wait ends
  desktop.time.Advance(4000);
  std::vector<std::uint32_t> spokenAt;
  for (const HeardCharacter& heard : game->heard)
    if (heard.code == kEnterCode) spokenAt.push_back(heard.tick - start);
  EXPECT_EQ(spokenAt, (std::vector<std::uint32_t>{2070, 4000, 6000}));
}

TEST_F(Unattended, IsHeldWhileAPopupIsUp) {
  StartGame();
  Start({"One", "&Rise", "Three"});
  Check(window->MOptionsAuto, false);
  StartRun(L"2000");
  desktop.forms.WhenModal(L"frmPopup", [this] {
    desktop.time.Advance(60'000);
    EXPECT_EQ(window->cmdSpeak.Caption(), L"&Stop");
    user.Press(kEnterKey);
  });
  desktop.time.Advance(2000);
  EXPECT_EQ(game->HeardText(), "One\r");
  desktop.time.Advance(1800);
  EXPECT_EQ(game->HeardText(), "One\r");
  desktop.time.Advance(200);
  EXPECT_EQ(game->HeardText(), "One\rThree\r");
}

// The timer goes on while the error of a directive is up, and its sentence leads to a popup comment.
TEST_F(Unattended, IsHeldUntilATextThatAnotherPopupTookHasBeenRead) {
  StartGame();
  Start({"One", "@{def x}", "&Rise", "Two", "Three"});
  Check(window->MOptionsAuto, false);
  StartRun(L"2000");
  desktop.forms.WhenModal(L"frmPopup", [this] {
    desktop.time.Advance(2000);
    EXPECT_EQ(program.Opened<frmPopup>()->lblMsg.Caption(), L"Rise");
    desktop.time.Advance(60'000);
    EXPECT_EQ(game->HeardText(), "One\rOne\r");
    user.Press(kEnterKey);
  });
  desktop.forms.WhenModal(L"frmPopup", [this] { user.Press(kEnterKey); });
  desktop.time.Advance(2000);
  EXPECT_TRUE(Runs());
  desktop.time.Advance(1800);
  EXPECT_EQ(game->HeardText(), "One\rOne\r");
  desktop.time.Advance(200);
  EXPECT_EQ(game->HeardText(), "One\rOne\rTwo\r");
}

// The popup is closed during the pause of a sentence that the hotkey sends, whose advance comes to the next.
TEST_F(Unattended, ShowsATextThatCameWhileThePopupWasClosing) {
  StartGame();
  Start({"One", "&first", "Two", "&second", "Three", "Four"});
  StartRun(L"2000");
  Lines read;
  const auto look = [&] { read.push_back(Readable(program.Opened<frmPopup>()->lblMsg.Caption())); };
  desktop.forms.WhenModal(L"frmPopup", [&] {
    look();
    desktop.time.After(100, [&] { user.Press(kEnterKey); });
    window->lstWedding.SetIndex(2);
    window->DoSpeechRow(L"");
  });
  desktop.forms.WhenModal(L"frmPopup", [&] {
    look();
    EXPECT_FALSE(Runs());
    user.Press(kEnterKey);
  });
  desktop.time.Advance(2400);
  EXPECT_EQ(read, (Lines{"first", "second"}));
  EXPECT_TRUE(Runs());
}

TEST_F(Unattended, CanBeStoppedWhileItIsHeld) {
  Start({"One", "&Rise", "Three"});
  StartGame();
  StartRun(L"2000");
  desktop.forms.WhenModal(L"frmPopup", [this] {
    window->StopAutoSpeech();
    user.Press(kEnterKey);
  });
  desktop.time.Advance(10'000);
  EXPECT_FALSE(Runs());
  EXPECT_EQ(window->cmdSpeak.Caption(), L"&Speak");
  EXPECT_EQ(Row(), 3);
  Check(window->MOptionsLearning, true);
  window->StopAutoSpeech();
  EXPECT_TRUE(window->lblDebug.Visible()) << "nothing to stop, nothing to change";
}

TEST_F(Unattended, NeverRunsWithoutRows) {
  Start({});
  StartRun(L"2000");
  desktop.time.Advance(2000);
  EXPECT_FALSE(Runs());
  program.ScriptNow.sFileName(L"");
  user.Choose(window->MOptionsUnattanded);
  EXPECT_EQ(TakeStory(), Lines{"box information Trothline: Please load a script file first."});
}

}  // namespace

}  // namespace troth
