// What the headless desktop does for a test beyond behaving like a real one: it fails the test by name
// instead of hanging, and refuses acts that no person could do.
#include "platform/headless/HeadlessDesktop.h"

#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

std::string FailureOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const HeadlessFailure& failure) {
    return failure.what();
  }
  return "no failure";
}

class HeadlessDesktopTest : public testing::Test {
 protected:
  HeadlessDesktop desktop;
  DeskForm form{desktop.platform};
  DialogForm dialog{desktop.platform};
};

TEST_F(HeadlessDesktopTest, NamesTheWindowThatNobodyCloses) {
  form.Show();
  EXPECT_EQ(FailureOf([&] { dialog.ShowModal(); }), "nobody closes the modal window frmDialog");
  EXPECT_EQ(FailureOf([&] { desktop.forms.RunUntilLastFormIsGone(); }), "nobody closes the window frmDesk");
}

TEST_F(HeadlessDesktopTest, NamesTheModalWindowEvenIfATimerRuns) {
  form.tmrBeat.SetEnabled(true);
  form.Show();
  EXPECT_EQ(FailureOf([&] { dialog.ShowModal(); }), "nobody closes the modal window frmDialog");
}

TEST_F(HeadlessDesktopTest, WaitsForActsThatAreStillToComeWhileAModalWindowIsUp) {
  desktop.time.After(50, [&] { desktop.user.Type(L"a"); });
  desktop.time.After(90, [&] { desktop.user.Click(dialog.cmdOk); });
  dialog.ShowModal();
  EXPECT_EQ(dialog.txtAnswer.Text(), L"a");
}

TEST_F(HeadlessDesktopTest, NamesTheBoxThatNobodyAnswers) {
  const MessageBoxRequest question{L"Save?", L"Trothline", BoxIcon::Question, BoxButtons::YesNo};
  EXPECT_EQ(FailureOf([&] { desktop.dialogs.ShowMessage(question); }),
            "nobody answers the box Trothline: Save?");
}

TEST_F(HeadlessDesktopTest, RefusesWhatNoPersonCouldDo) {
  EXPECT_EQ(FailureOf([&] { desktop.user.Press(kTab); }), "no window has the keyboard");
  EXPECT_EQ(FailureOf([&] { desktop.user.Click(form.cmdGo); }), "control is not on a shown window: cmdGo");
  EXPECT_EQ(FailureOf([&] { desktop.user.CloseWindow(form); }), "window is not shown: frmDesk");
  form.Show();
  form.cmdGo.SetEnabled(false);
  EXPECT_EQ(FailureOf([&] { desktop.user.Click(form.cmdGo); }), "control is hidden or disabled: cmdGo");
  EXPECT_EQ(FailureOf([&] { desktop.user.Click(form.cmdGhost); }), "control is hidden or disabled: cmdGhost");
  desktop.user.Click(form.txtFixed);
  EXPECT_EQ(FailureOf([&] { desktop.user.Type(L"x"); }), "no text box takes what is typed");
  desktop.forms.WhenModal(L"frmDialog", [&] {
    EXPECT_EQ(FailureOf([&] { desktop.user.Click(form.cmdStop); }),
              "control is blocked by a modal window: cmdStop");
    EXPECT_EQ(FailureOf([&] { desktop.user.CloseWindow(form); }),
              "window is blocked by a modal one: frmDesk");
    dialog.Unload();
  });
  dialog.ShowModal();
}

TEST_F(HeadlessDesktopTest, WritesDownWhatWentOutInOrder) {
  desktop.windows.Open(L"Game");
  const WindowHandle game = desktop.windows.Find(L"Game");
  desktop.windows.Raise(game);
  desktop.windows.PostCharacter(game, 'h');
  desktop.time.Sleep(300);
  desktop.keyboard.TypeKeys(L"{ENTER}");
  desktop.dialogs.ShowMessage({.text = L"\x20AC", .title = L"T", .icon = BoxIcon::Information});
  EXPECT_THROW(desktop.process.EndNow(3), ProcessEnded);
  EXPECT_EQ(desktop.journal.Lines(), (Lines{"raise Game", "post 104", "sleep 300", "keys {ENTER}",
                                            "box information T: \\x20AC", "end 3"}));
}

TEST_F(HeadlessDesktopTest, FilesFailAsPlanned) {
  desktop.files.Put(L"C:\\a.txt", "a");
  desktop.files.Put(L"C:\\b.txt", "b");
  desktop.files.RefuseReading(L"c:\\A.TXT");
  desktop.files.VanishAfterLook(L"C:\\b.txt");
  EXPECT_TRUE(desktop.files.Exists(L"C:\\a.txt"));
  EXPECT_EQ(desktop.files.Read(L"C:\\a.txt"), std::nullopt);
  EXPECT_TRUE(desktop.files.Exists(L"C:\\b.txt"));
  EXPECT_EQ(desktop.files.Read(L"C:\\b.txt"), std::nullopt);
  desktop.files.Put(L"C:\\refused\\c.txt", "c");
  desktop.files.Refuse(L"C:\\refused");
  EXPECT_FALSE(desktop.files.Write(L"C:\\refused\\d.txt", "d"));
  EXPECT_FALSE(desktop.files.Delete(L"C:\\refused\\c.txt"));
  EXPECT_TRUE(desktop.files.List(L"C:\\refused").empty());
}

TEST_F(HeadlessDesktopTest, FullDiskKeepsTheOldFileButAlsoThePartOfAStream) {
  desktop.files.Put(L"C:\\old.txt", "old");
  desktop.files.LeaveRoomFor(5);
  EXPECT_FALSE(desktop.files.Write(L"C:\\old.txt", "longer"));
  EXPECT_EQ(desktop.files.Read(L"C:\\old.txt"), "old");
  const auto writer = desktop.files.Create(L"C:\\stream.txt");
  EXPECT_TRUE(writer->Append("four"));
  EXPECT_FALSE(writer->Append("more"));
  EXPECT_EQ(desktop.files.Read(L"C:\\stream.txt"), "fourm");
  EXPECT_TRUE(desktop.files.Delete(L"C:\\stream.txt"));
  EXPECT_TRUE(desktop.files.Write(L"C:\\old.txt", "fits!"));
}

TEST_F(HeadlessDesktopTest, SettingsKeepTheirOldValueWhereWritesAreRefused) {
  desktop.settings.Write(L"A", L"S", L"K", L"kept");
  desktop.settings.RefuseWrites(true);
  desktop.settings.Write(L"A", L"S", L"K", L"lost");
  EXPECT_EQ(desktop.settings.Read(L"A", L"S", L"K"), L"kept");
}

}  // namespace

}  // namespace troth
