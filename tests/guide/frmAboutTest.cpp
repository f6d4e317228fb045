// The release notes and the about window: their texts, their links and the ways through them.
#include "guide/frmAbout.h"

#include "core/modMain.h"
#include "guide/frmShip.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class frmAboutTest : public RunTest {};

TEST_F(frmAboutTest, ReleaseNotesWelcomeUntilTheyAreTickedAway) {
  Store(L"Show Tips at Startup", L"0");
  desktop.forms.WhenModal(L"frmIntro", [&] {
    EXPECT_EQ(Intro().lblVersion.Caption(), L"Version " + version);
    EXPECT_TRUE(Intro().lblDescription.Caption().starts_with(L"Welcome to Trothline " + version + L"\r\n"));
    EXPECT_FALSE(Intro().chkNeverAgain.Ticked());
    user.Press('D', kAltDown);
    EXPECT_EQ(Stored(L"Last Installed Version"), L"(nothing)") << "kept when the window goes, not before";
    user.Press(kEnterKey);
  });
  Run([&] { user.Choose(Main().MFileQuit); });
  EXPECT_EQ(Stored(L"Last Installed Version"), version);
}

TEST_F(frmAboutTest, ItsLinksWorkByMouseAndByKeyboard) {
  desktop.shell.registry[L"mailto\\shell\\open\\command"] = L"mail.exe %1";
  const Lines web{"write C:\\temphtm.HTM", "delete C:\\temphtm.HTM",
                  "open C:\\Programs\\Browser.exe https://trothline.example/"};
  const Lines mail{"start mail.exe officiant@trothline.example"};
  const auto tabTo = [&](const Control& control) {
    for (int press = 0; press < 10 && user.Focused() != &control; ++press) user.Press(kTabKey);
    EXPECT_EQ(user.Focused(), &control);
  };
  RunMain([&] {
    InAbout([&] {
      TakeStory();
      user.Click(About().lblWebsite);
      EXPECT_EQ(TakeStory(), web);
      user.Click(About().lblEmail);
      EXPECT_EQ(TakeStory(), mail);
      for (const int key : {kEnterKey, kSpaceKey}) {
        tabTo(About().lblWebsite);
        user.Press(key);
        EXPECT_EQ(TakeStory(), web);
        tabTo(About().lblEmail);
        user.Press(key);
        EXPECT_EQ(TakeStory(), mail);
      }
      EXPECT_TRUE(About().Visible()) << "Enter belongs to the link, not to OK";
    });
  });
}

TEST_F(frmAboutTest, APhraseOpensTheHiddenGameInstead) {
  const struct {
    const wchar_t* sentence;
    bool opensGame;
  } cases[] = {{L"MOSSY CLIFF!", true},   {L"mossy Cliff!", true},
               {L"! Mossy cliff!", true}, {L"mossy cliff", false},
               {L"!mossy cliff!", false}, {L" mossy cliff!", false},
               {L"mossy cliff!!", false}, {L"", false}};
  RunMain([&] {
    bool game = false;
    bool about = false;
    for (const auto& each : cases) {
      game = about = false;
      Main().txtNext.SetText(each.sentence);
      if (each.opensGame)
        user.Choose(Main().MFileAbout);
      else
        InAbout([&] { about = true; });
      auto* ship = program->Opened<frmShip>();
      game = ship != nullptr;
      if (ship) ship->Unload();
      EXPECT_EQ(game, each.opensGame) << Readable(each.sentence);
      EXPECT_EQ(about, !each.opensGame);
    }
  });
}

}  // namespace
}  // namespace troth
