// Keys: mnemonics, default and cancel buttons, and what reaches OnKeyDown.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class Keys : public ConformanceTest {
 protected:
  DeskForm form{platform};

  void SetUp() override {
    form.chkLoud.OnClick = form.Writer("loud");
    form.cmdGo.OnClick = form.Writer("go");
    form.cmdStop.OnClick = form.Writer("stop");
    form.cmdGhost.OnClick = form.Writer("ghost");
    form.lstPlain.SetEntries(Entries(5));
    Show(form);
    form.TakeHeard();
  }
  // Leaves out the shift keys themselves, which are keys as well.
  void HearKeysOf(Control& control) {
    control.OnKeyDown = [this](KeyPress& press) {
      if (press.keyCode >= 16 && press.keyCode <= 18) return;
      form.Write(std::to_string(press.keyCode) + "/" + std::to_string(press.shift));
    };
  }
};

TEST_F(Keys, MnemonicsLeadToTheirControls) {
  form.lstPlain.SetFocus();
  desktop->Press('N', kAltDown);
  EXPECT_TRUE(desktop->HasKeyboard(form.txtName)) << "a label leads to the next stop";
  EXPECT_EQ(form.TakeHeard(), Lines{});
  desktop->Press('L', kAltDown);
  EXPECT_TRUE(desktop->HasKeyboard(form.chkLoud));
  EXPECT_TRUE(form.chkLoud.Ticked());
  EXPECT_TRUE(desktop->ShownTick(form.chkLoud));
  desktop->Press('G', kAltDown);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdGo));
  EXPECT_EQ(form.TakeHeard(), (Lines{"loud", "go"}));
}

TEST_F(Keys, EnterClicksTheDefaultButtonUnlessAnotherButtonHasTheKeyboard) {
  Control* const places[] = {&form.txtName, &form.txtFixed, &form.chkLoud, &form.lstPlain, &form.cmdGo};
  for (Control* place : places) {
    place->SetFocus();
    desktop->Press(kEnter);
    EXPECT_EQ(form.TakeHeard(), Lines{"go"}) << Narrow(place->Name());
    EXPECT_TRUE(desktop->HasKeyboard(*place)) << Narrow(place->Name());
  }
  form.cmdStop.SetFocus();
  desktop->Press(kEnter);
  EXPECT_EQ(form.TakeHeard(), Lines{"stop"});
}

TEST_F(Keys, EscapeClicksTheCancelButtonFromAnywhere) {
  Control* const places[] = {&form.txtName, &form.chkLoud, &form.cmdGo, &form.cmdStop, &form.lstPlain};
  for (Control* place : places) {
    place->SetFocus();
    desktop->Press(kEscape);
    EXPECT_EQ(form.TakeHeard(), Lines{"stop"}) << Narrow(place->Name());
  }
  form.cmdStop.SetEnabled(false);
  desktop->Press(kEscape);
  EXPECT_EQ(form.TakeHeard(), Lines{});
  EXPECT_TRUE(desktop->ShownVisible(form));
}

TEST_F(Keys, ReachTheTextBoxWithTheirShiftState) {
  HearKeysOf(form.txtName);
  desktop->Press(kHome, kControlDown);
  desktop->Press(kEnd, kControlDown);
  desktop->Press(kUp);
  desktop->Press(kDown);
  desktop->Press(kEnd);
  desktop->Press(kHome, kControlDown + kShiftDown);
  EXPECT_EQ(form.TakeHeard(), (Lines{"36/2", "35/2", "38/0", "40/0", "35/0", "36/3"}));
  EXPECT_TRUE(desktop->HasKeyboard(form.txtName));
}

TEST_F(Keys, HandledOnesDoNotReachTheControl) {
  const auto swallow = [](KeyPress& press) { press.handled = true; };
  desktop->Click(form.txtName);
  desktop->Type(L"abc");
  desktop->Select(form.lstPlain, 1);
  form.txtName.OnKeyDown = swallow;
  form.lstPlain.OnKeyDown = swallow;
  desktop->Press(kDown);
  desktop->Press(kEnd);
  EXPECT_EQ(form.lstPlain.Index(), 1);
  EXPECT_EQ(desktop->ShownIndex(form.lstPlain), 1);
  desktop->Click(form.txtName);
  desktop->Press(kBackspace);
  EXPECT_EQ(form.txtName.Text(), L"abc");
  EXPECT_EQ(desktop->ShownText(form.txtName), L"abc");
  form.txtName.OnKeyDown = {};
  desktop->Press(kBackspace);
  EXPECT_EQ(form.txtName.Text(), L"ab");
}

}  // namespace

}  // namespace troth
