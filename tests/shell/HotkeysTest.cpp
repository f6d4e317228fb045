// The global hotkeys: what is registered when, and what a press does.
#include "shell/Hotkeys.h"

#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class HotkeysTest : public SpeechTest {
 protected:
  static constexpr int kF11 = kF1Key + 10;
  static constexpr int kF12 = kF1Key + 11;
  static constexpr int kAllModifiers = 7;

  // "KEY/MODIFIERS" of each, in the order of registration.
  Lines Registered() const {
    Lines all;
    for (const HeadlessHotkey& hotkey : desktop.forms.Hotkeys())
      all.push_back(std::to_string(hotkey.keyCode) + "/" + std::to_string(hotkey.modifiers));
    return all;
  }
  Lines AtomNames() const {
    Lines names;
    for (const auto& [atom, name] : desktop.keyboard.Atoms()) names.push_back(Readable(name));
    return names;
  }
};

TEST_F(HotkeysTest, ARunHoldsWhatItsSettingsEnableAndLeavesNothingBehind) {
  // Each value on top of those before it.
  const struct {
    const wchar_t* section;
    const wchar_t* key;
    const wchar_t* value;
    Lines registered;
  } runs[] = {{L"Hotkey", L"Control", L"1", {}},
              {L"Screenshot", L"Hotkey Enabled", L"1", {"123/0"}},
              {L"Edit Box", L"Alt", L"1", {"123/0"}},
              {L"Edit Box", L"Enabled", L"-1", {"123/0", "123/1"}},
              {L"Hotkey", L"Enabled", L"1", {"123/2", "123/0", "123/1"}},
              {L"Hotkey", L"Key", L"70", {"70/2", "123/0", "123/1"}},
              {L"Hotkey", L"Shift", L"1", {"70/6", "123/0", "123/1"}},
              {L"Screenshot", L"Hotkey Enabled", L"0", {"70/6", "123/1"}}};
  for (const auto& [section, key, value, registered] : runs) {
    Store(section, key, value);
    Start({"hello"});
    EXPECT_EQ(Registered(), registered);
    EXPECT_EQ(AtomNames(), (Lines{"TrothlineHotkey", "TrothlineScreenshot", "TrothlineEditBox"}));
    user.Choose(window->MViewEdit);
    window->Unload();
    EXPECT_TRUE(Registered().empty() && AtomNames().empty());
    EXPECT_TRUE(desktop.forms.StackingOrder().empty()) << "the edit window goes as well";
  }
}

TEST_F(HotkeysTest, APressDoesWhatEachRecordOfExactlyThisCombinationSays) {
  auto& main = program.Open<DriverWindow>(callbacks, [] {});
  Lines done;
  std::function<void()> whileSpeaking = [] {};
  const auto speak = [&] {
    done.push_back("speak");
    whileSpeaking();
  };
  Hotkeys hotkeys(program, main,
                  {.speakOrStop = speak,
                   .takeScreenshot = [&] { done.push_back("screenshot"); },
                   .showEditBox = [&] { done.push_back("edit box"); }});
  HotkeyRecord& speech = program.Hotkeys.Speech;
  speech = {.enabled = true, .control = true, .key = kF12};
  program.Hotkeys.Screenshot = {.enabled = true, .alt = true, .key = kF12};
  program.Hotkeys.EditBox = {.enabled = false, .control = true, .key = kF12};
  const auto after = [&](int keyCode, int modifiers) {
    done.clear();
    main.UserPressedHotkey(modifiers, keyCode);
    return done;
  };
  EXPECT_EQ(after(kF12, kHotkeyControl), Lines{}) << "not in place yet";
  hotkeys.PutInPlace();
  EXPECT_EQ(after(kF12, kHotkeyControl), Lines{"speak"});
  EXPECT_EQ(after(kF12, kHotkeyAlt), Lines{"screenshot"});
  EXPECT_EQ(after(kF12, 0), Lines{});
  EXPECT_EQ(after(kF12, kAllModifiers), Lines{});
  EXPECT_EQ(after(kF11, kHotkeyControl), Lines{});
  // The tests do not exclude each other.
  program.Hotkeys.EditBox.enabled = true;
  EXPECT_EQ(after(kF12, kHotkeyControl), (Lines{"speak", "edit box"}));
  whileSpeaking = [&] { hotkeys.TakeDown(); };
  EXPECT_EQ(after(kF12, kHotkeyControl), Lines{"speak"}) << "taken down by the first action";
  EXPECT_TRUE(Registered().empty() && AtomNames().empty());
  hotkeys.TakeDown();

  // What is not enabled any more is given back as well.
  hotkeys.PutInPlace();
  speech.enabled = false;
  hotkeys.UnregisterHotkeys();
  EXPECT_TRUE(Registered().empty());
  hotkeys.TakeDown();
  speech.enabled = true;

  main.Unload();
}

TEST_F(HotkeysTest, APressDuringThePauseSpeaksInsideItAndMixesNoCharacters) {
  Store(L"Hotkey", L"Enabled", L"1");
  Store(L"Edit Box", L"Enabled", L"1");
  Store(L"Edit Box", L"Key", L"122");
  StartGame();
  Start({"one", "two", "three"});
  desktop.time.After(100, [&] { user.PressHotkey(kF12); });
  desktop.time.After(200, [&] { user.PressHotkey(kF11); });
  user.PressHotkey(kF12);
  EXPECT_EQ(TakeStory(), (Lines{kRaise, "posts <13>", kRaise, "posts <13>one<13>one<13>"}));
  EXPECT_EQ(Row(), 3);
  EXPECT_EQ(desktop.forms.Active()->Portable().Name(), L"frmEdit");
}

}  // namespace

}  // namespace troth
