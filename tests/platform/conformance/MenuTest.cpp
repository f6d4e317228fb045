// Menus: choices of the user, and what the program changes about them.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

using MenuState = DesktopUnderTest::MenuState;
using Texts = std::vector<std::wstring>;

class Menus : public ConformanceTest {
 protected:
  DeskForm form{platform};

  void SetUp() override {
    form.MFileOpen.OnClick = form.Writer("open");
    form.MFileSecret.OnClick = form.Writer("secret");
    form.MOptionsAuto.OnClick = form.Writer("auto");
    form.MOptionsOff.OnClick = form.Writer("grey");
    Show(form);
    form.TakeHeard();
  }
};

TEST_F(Menus, ShowTheirItemsAsDeclared) {
  EXPECT_EQ(desktop->ShownMenuTexts(form.MFile), (Texts{L"&Open", L"-", L"E&xit"}));
  EXPECT_EQ(desktop->ShownMenuTexts(form.MOptions), (Texts{L"&Auto", L"&Grey"}));
  EXPECT_EQ(desktop->ShownMenu(form.MOptionsAuto), (MenuState{true, true, true}));
  EXPECT_EQ(desktop->ShownMenu(form.MOptionsOff), (MenuState{true, false, false}));
  EXPECT_EQ(desktop->ShownMenu(form.MFileSecret), MenuState{});
  EXPECT_EQ(desktop->ShownMenu(form.MFile), (MenuState{true, true, false}));
}

TEST_F(Menus, GreyAndHiddenItemsAreNotChosen) {
  desktop->Choose(form.MOptionsOff);
  desktop->Choose(form.MFileSecret);
  form.MOptions.SetEnabled(false);
  desktop->Choose(form.MOptionsAuto);
  EXPECT_EQ(form.TakeHeard(), Lines{});
  form.MOptions.SetEnabled(true);
  form.MOptionsOff.SetEnabled(true);
  form.MFileSecret.SetVisible(true);
  desktop->Choose(form.MOptionsAuto);
  desktop->Choose(form.MOptionsOff);
  desktop->Choose(form.MFileSecret);
  EXPECT_EQ(form.TakeHeard(), (Lines{"auto", "grey", "secret"}));
}

TEST_F(Menus, ShowWhatTheProgramChangesAndRaiseNothing) {
  form.MOptionsAuto.SetChecked(false);
  EXPECT_EQ(desktop->ShownMenu(form.MOptionsAuto), (MenuState{true, true, false}));
  form.MOptionsAuto.SetChecked(true);
  form.MOptionsAuto.SetEnabled(false);
  EXPECT_EQ(desktop->ShownMenu(form.MOptionsAuto), (MenuState{true, false, true}));
  form.MOptionsAuto.SetCaption(L"&Automatic");
  EXPECT_EQ(desktop->ShownMenuTexts(form.MOptions), (Texts{L"&Automatic", L"&Grey"}));
  EXPECT_EQ(desktop->ShownMenu(form.MOptionsAuto), (MenuState{true, false, true}));
  form.MOptions.SetCaption(L"O&ptions");
  EXPECT_EQ(desktop->ShownMenuTexts(form.MOptions), (Texts{L"&Automatic", L"&Grey"}));
  EXPECT_EQ(form.TakeHeard(), Lines{});
}

TEST_F(Menus, HiddenItemComesBackToItsPlace) {
  form.MFileSecret.SetVisible(true);
  EXPECT_EQ(desktop->ShownMenuTexts(form.MFile), (Texts{L"&Open", L"&Secret", L"-", L"E&xit"}));
  form.MFileSecret.SetChecked(true);
  form.MFileOpen.SetVisible(false);
  EXPECT_EQ(desktop->ShownMenuTexts(form.MFile), (Texts{L"&Secret", L"-", L"E&xit"}));
  form.MFileOpen.SetVisible(true);
  form.MFileSecret.SetVisible(false);
  EXPECT_EQ(desktop->ShownMenuTexts(form.MFile), (Texts{L"&Open", L"-", L"E&xit"}));
  desktop->Choose(form.MFileOpen);
  EXPECT_EQ(form.TakeHeard(), Lines{"open"});
}

}  // namespace

}  // namespace troth
