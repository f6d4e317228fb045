// Which control has the keyboard, and what is heard when it moves.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class Focus : public ConformanceTest {
 protected:
  DeskForm form{platform};

  void ShowWatched() {
    form.WatchFocus();
    Show(form);
    form.TakeHeard();
  }
};

TEST_F(Focus, StartsAtTheFirstControlThatTakesIt) {
  form.WatchFocus();
  Show(form);
  EXPECT_TRUE(desktop->HasKeyboard(form.txtName));
  EXPECT_EQ(form.TakeHeard(), (Lines{"load", "+txtName"}));
}

TEST_F(Focus, LeavesTheOldControlBeforeItEntersTheNew) {
  ShowWatched();
  form.cmdGo.SetFocus();
  EXPECT_EQ(form.TakeHeard(), (Lines{"-txtName", "+cmdGo"}));
  desktop->Click(form.chkLoud);
  EXPECT_EQ(form.TakeHeard(), (Lines{"-cmdGo", "+chkLoud"}));
  desktop->Press(kTab);
  EXPECT_EQ(form.TakeHeard(), (Lines{"-chkLoud", "+cmdGo"}));
  form.cmdGo.SetFocus();
  EXPECT_EQ(form.TakeHeard(), Lines{});
}

TEST_F(Focus, TabWalksInOrderOfDeclarationAndWraps) {
  ShowWatched();
  Control* const stops[] = {&form.txtFixed, &form.chkLoud,  &form.cmdGo,   &form.cmdStop,
                            &form.lstPlain, &form.lstTicks, &form.txtName, &form.txtFixed};
  for (Control* stop : stops) {
    desktop->Press(kTab);
    EXPECT_TRUE(desktop->HasKeyboard(*stop)) << Narrow(stop->Name());
  }
  for (int back = static_cast<int>(std::size(stops)) - 2; back >= 0; --back) {
    desktop->Press(kTab, kShiftDown);
    EXPECT_TRUE(desktop->HasKeyboard(*stops[back])) << "backward, " << Narrow(stops[back]->Name());
  }
}

TEST_F(Focus, CannotBePutOnWhatIsDisabledHiddenOrNotLoaded) {
  form.txtName.SetFocus();
  ShowWatched();
  form.txtOff.SetFocus();
  form.cmdGhost.SetFocus();
  form.lblName.SetFocus();
  EXPECT_TRUE(desktop->HasKeyboard(form.txtName));
  EXPECT_EQ(form.TakeHeard(), Lines{});
}

TEST_F(Focus, PassesOnFromAControlThatIsDisabledOrHidden) {
  ShowWatched();
  form.chkLoud.SetFocus();
  form.TakeHeard();
  form.chkLoud.SetEnabled(false);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdGo));
  EXPECT_EQ(form.TakeHeard(), (Lines{"-chkLoud", "+cmdGo"}));
  form.cmdGo.SetVisible(false);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdStop));
  EXPECT_EQ(form.TakeHeard(), (Lines{"-cmdGo", "+cmdStop"}));
  desktop->Press(kTab);
  EXPECT_TRUE(desktop->HasKeyboard(form.lstPlain));
}

TEST_F(Focus, LeavesWithItsFormAndComesBackToTheSameControl) {
  DialogForm dialog(platform);
  ShowWatched();
  form.chkLoud.SetFocus();
  form.TakeHeard();
  Show(dialog);
  EXPECT_TRUE(desktop->HasKeyboard(dialog.txtAnswer));
  EXPECT_EQ(form.TakeHeard(), Lines{"-chkLoud"});
  Show(form);
  EXPECT_TRUE(desktop->HasKeyboard(form.chkLoud));
  EXPECT_EQ(form.TakeHeard(), Lines{"+chkLoud"});
  dialog.Unload();
  Settle();
  EXPECT_EQ(form.TakeHeard(), Lines{});
}

}  // namespace

}  // namespace troth
