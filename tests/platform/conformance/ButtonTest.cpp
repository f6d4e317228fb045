// Push buttons and check boxes.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class Buttons : public ConformanceTest {
 protected:
  DeskForm form{platform};

  void SetUp() override {
    form.chkLoud.OnClick = [this] { form.Write(form.chkLoud.Ticked() ? "loud" : "soft"); };
    form.cmdGo.OnClick = form.Writer("go");
    form.cmdStop.OnClick = form.Writer("stop");
    Show(form);
    form.TakeHeard();
  }
};

TEST_F(Buttons, ClickOnceForEachClickOrSpace) {
  desktop->Click(form.cmdStop);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdStop));
  EXPECT_EQ(form.TakeHeard(), Lines{"stop"});
  desktop->Press(kSpace);
  desktop->Press(kSpace);
  EXPECT_EQ(form.TakeHeard(), (Lines{"stop", "stop"}));
}

TEST_F(Buttons, DisabledOrHiddenOnesAreNotClicked) {
  form.cmdGo.SetEnabled(false);
  EXPECT_ANY_THROW(desktop->Click(form.cmdGo));
  EXPECT_ANY_THROW(desktop->Click(form.cmdGhost));
  EXPECT_EQ(form.TakeHeard(), Lines{});
  form.cmdGo.SetEnabled(true);
  desktop->Click(form.cmdGo);
  EXPECT_EQ(form.TakeHeard(), Lines{"go"});
}

TEST_F(Buttons, OneThatDisablesItselfIsNotClickedAgainBySpace) {
  form.cmdGo.OnClick = [this] {
    form.Write("go");
    form.cmdGo.SetEnabled(false);
  };
  desktop->Click(form.cmdGo);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdStop));
  desktop->Press(kSpace);
  EXPECT_EQ(form.TakeHeard(), (Lines{"go", "stop"}));
}

TEST_F(Buttons, CheckBoxRaisesClickForTheUserOnly) {
  desktop->Click(form.chkLoud);
  EXPECT_TRUE(desktop->ShownTick(form.chkLoud));
  EXPECT_EQ(form.TakeHeard(), Lines{"loud"});
  desktop->Press(kSpace);
  EXPECT_FALSE(desktop->ShownTick(form.chkLoud));
  EXPECT_EQ(form.TakeHeard(), Lines{"soft"});
  form.chkLoud.SetTicked(true);
  EXPECT_TRUE(desktop->ShownTick(form.chkLoud));
  EXPECT_EQ(form.TakeHeard(), Lines{});
  desktop->Click(form.chkLoud);
  EXPECT_FALSE(desktop->ShownTick(form.chkLoud));
  EXPECT_EQ(form.TakeHeard(), Lines{"soft"});
}

}  // namespace

}  // namespace troth
