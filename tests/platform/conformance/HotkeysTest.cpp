// Global hotkeys: when a form hears of one, when it is refused, and when it ends.
#include "platform/services/KeyboardService.h"
#include "platform/services/WindowService.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

constexpr int kF9 = 120;
constexpr int kF11 = 122;

class GlobalHotkeys : public ConformanceTest {
 protected:
  DeskForm form{platform};

  void SetUp() override {
    form.OnHotkey = [this](int modifiers, int keyCode) {
      form.Write(std::to_string(keyCode) + "+" + std::to_string(modifiers));
    };
    Show(form);
    form.TakeHeard();
  }
  Lines HeardWhenPressed(int keyCode, int modifiers) {
    desktop->PressHotkey(keyCode, modifiers);
    return form.TakeHeard();
  }
};

TEST_F(GlobalHotkeys, AreHeardWithTheirVeryModifiersUntilTheyEnd) {
  constexpr int kModifiers[] = {0, kHotkeyShift, kHotkeyControl, kHotkeyControl + kHotkeyShift,
                                kHotkeyAlt + kHotkeyControl};
  for (const int modifiers : kModifiers) {
    SCOPED_TRACE(modifiers);
    ASSERT_TRUE(form.RegisterHotkey(7, modifiers, kF9));
    for (const int pressed : kModifiers)
      EXPECT_EQ(HeardWhenPressed(kF9, pressed),
                pressed == modifiers ? Lines{"120+" + std::to_string(modifiers)} : Lines{})
          << pressed;
    EXPECT_EQ(HeardWhenPressed(kF11, modifiers), Lines{});
    form.UnregisterHotkey(7);
    EXPECT_EQ(HeardWhenPressed(kF9, modifiers), Lines{});
  }
  EXPECT_FALSE(DeskForm(platform).RegisterHotkey(7, 0, kF9)) << "a form that is not loaded has none";
}

TEST_F(GlobalHotkeys, AreHeardBehindOtherProgramsModalFormsBoxesAndWhenHidden) {
  ASSERT_TRUE(form.RegisterHotkey(7, 0, kF9));
  const Lines heard{"120+0"};
  DialogForm dialog(platform);
  desktop->WhenModal(dialog, [&] {
    EXPECT_EQ(HeardWhenPressed(kF9, 0), heard);
    dialog.Unload();
  });
  dialog.ShowModal();
  desktop->NextBox(BoxAnswer::Ok, [&] { EXPECT_EQ(HeardWhenPressed(kF9, 0), heard); });
  platform.dialogs.ShowMessage({.text = L"End of script", .title = L"Trothline"});
  desktop->NextQuestion(L"x", [&] { EXPECT_EQ(HeardWhenPressed(kF9, 0), heard); });
  platform.dialogs.AskText({.prompt = L"Name", .title = L"Trothline", .preset = {}});
  form.Hide();
  Settle();
  EXPECT_EQ(HeardWhenPressed(kF9, 0), heard);
  const int game = desktop->OpenForeignWindow(L"TrothConformanceGame");
  platform.windows.Raise(platform.windows.Find(L"TrothConformanceGame"));
  ASSERT_TRUE(desktop->WasRaised(game));
  EXPECT_EQ(HeardWhenPressed(kF9, 0), heard);
}

TEST_F(GlobalHotkeys, AreRefusedWhileAnybodyHoldsThem) {
  desktop->HoldHotkey(kF9, kHotkeyControl);
  EXPECT_FALSE(form.RegisterHotkey(7, kHotkeyControl, kF9));
  EXPECT_TRUE(form.RegisterHotkey(7, kHotkeyShift, kF9));
  EXPECT_FALSE(form.RegisterHotkey(8, kHotkeyShift, kF9)) << "under another number";
  DialogForm other(platform);
  Show(other);
  EXPECT_FALSE(other.RegisterHotkey(7, kHotkeyShift, kF9));
  EXPECT_TRUE(other.RegisterHotkey(7, 0, kF9)) << "the numbers of one form are not those of another";
  EXPECT_FALSE(form.RegisterHotkey(8, 0, kF9));
  desktop->Click(other.cmdOk);
  EXPECT_TRUE(form.RegisterHotkey(8, 0, kF9)) << "it went with its form";
}

TEST_F(GlobalHotkeys, NumberOfANameIsTheSameAsLongAsSomebodyHoldsIt) {
  KeyboardService& keys = platform.keyboard;
  const std::uint16_t one = keys.AddGlobalAtom(L"TrothConformanceOne");
  const std::uint16_t two = keys.AddGlobalAtom(L"TrothConformanceTwo");
  EXPECT_NE(one, 0);
  EXPECT_NE(one, two);
  EXPECT_EQ(keys.AddGlobalAtom(L"TROTHconformanceOne"), one);
  keys.DeleteGlobalAtom(one);
  EXPECT_EQ(keys.AddGlobalAtom(L"TrothConformanceOne"), one) << "one holder is left";
  for (const std::uint16_t atom : {one, one, two}) keys.DeleteGlobalAtom(atom);
}

}  // namespace

}  // namespace troth
