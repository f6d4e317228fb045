// The dialog of hotkeys: what it shows, refuses, stores and leaves alone.
#include "shell/frmHotkey.h"

#include <limits>

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class frmHotkeyTest : public RunTest {
 protected:
  frmHotkey& Dialog() { return *program->Opened<frmHotkey>(); }
  void InDialog(const std::function<void()>& act) {
    desktop.forms.WhenModal(L"frmHotkey", act);
    user.Choose(Main().MOptionsHotkey);
    EXPECT_EQ(program->Opened<frmHotkey>(), nullptr);
  }
  void GoTo(int tab) { user.Select(Dialog().tabHotkey, tab); }

  struct Page {
    CheckBox& enable;
    CheckBox& control;
    CheckBox& alt;
    CheckBox& shift;
    DropDownList& key;
  };
  Page PageOf(int tab) {
    frmHotkey& d = Dialog();
    if (tab == 0) return {d.chkEnable, d.chkControl, d.chkAlt, d.chkShift, d.cmbKey};
    if (tab == 1) return {d.chkSEnable, d.chkSControl, d.chkSAlt, d.chkSShift, d.cmbSKey};
    return {d.chkEEnable, d.chkEControl, d.chkEAlt, d.chkEShift, d.cmbEKey};
  }
  static void ExpectEnabled(std::initializer_list<const Control*> controls, bool enabled) {
    for (const Control* control : controls)
      EXPECT_EQ(control->Enabled(), enabled) << Readable(control->Name());
  }
  // Boxes to click on, by their letters (e, c, a, s), and the number of a function key up to 9.
  void Set(int tab, const std::string& choices) {
    GoTo(tab);
    const Page page = PageOf(tab);
    for (const char c : choices)
      if (c >= '1' && c <= '9')
        user.Select(page.key, c - '1');
      else
        user.Click(c == 'e' ? page.enable : c == 'c' ? page.control : c == 'a' ? page.alt : page.shift);
  }
  Lines Registered() const {
    Lines all;
    for (const HeadlessHotkey& hotkey : desktop.forms.Hotkeys())
      if (hotkey.holder)
        all.push_back(std::to_string(hotkey.keyCode) + "/" + std::to_string(hotkey.modifiers));
    return all;
  }
};

TEST_F(frmHotkeyTest, ShowsOneTabAtATimeWithItsControlsEnabledByTheirBoxes) {
  RunMain([&] {
    InDialog([&] {
      frmHotkey& d = Dialog();
      EXPECT_EQ(d.lblFile2.Caption(), L"C:\\Games\\Trothline\\Screenshots");
      EXPECT_TRUE(d.chkSticky.Ticked());
      EXPECT_EQ(d.picColor.BackColor(), 65535u);
      for (const int tab : {0, 1, 2}) {
        GoTo(tab);
        for (const int other : {0, 1, 2}) EXPECT_EQ(PageOf(other).enable.IsShown(), other == tab);
        const Page page = PageOf(tab);
        for (const bool enabled : {false, true, false}) {
          ExpectEnabled({&page.control, &page.alt, &page.shift, &page.key}, enabled);
          EXPECT_EQ(page.key.Index(), 11);
          user.Click(page.enable);
        }
      }
      GoTo(1);
      // Boxes of two tabs share their letters: only those of the open tab answer.
      user.Press('L', kAltDown);
      EXPECT_TRUE(d.chkSAlt.Ticked());
      EXPECT_FALSE(d.chkEAlt.Ticked());
      constexpr struct {
        CheckBox frmHotkey::*clicked;
        bool isLabelled;
        bool hasComment;
      } kClicks[] = {{&frmHotkey::chkPreview, true, false},
                     {&frmHotkey::chkCounselor, true, true},
                     {&frmHotkey::chkLabel, false, false},
                     {&frmHotkey::chkLabel, true, true}};
      for (const auto& [clicked, isLabelled, hasComment] : kClicks) {
        user.Click(d.*clicked);
        ExpectEnabled({&d.chkNames, &d.chkDate, &d.chkCounselor, &d.cmbPosition}, isLabelled);
        EXPECT_EQ(d.txtCounselor.IsShown(), hasComment);
      }
      user.Press(kEscapeKey);
    });
  });
}

TEST_F(frmHotkeyTest, RefusesTwoHotkeysOfOneCombination) {
  const struct {
    const char* choices[3];
    std::string conflict;
  } cases[] = {{{"eca5", "eca5", "eca5"}, "speech command and the screenshot"},
               {{"ec", "e", "ec"}, "speech command and the edit box"},
               {{"", "es7", "es7"}, "screenshot command and the edit box"},
               {{"e", "", ""}, ""},
               {{"ec", "ea", "es"}, ""},
               {{"ec1", "ec5", "ec"}, ""}};
  for (const auto& wanted : cases) {
    SCOPED_TRACE(wanted.choices[0] + wanted.conflict);
    desktop.settings = HeadlessSettings();
    RunMain([&] {
      InDialog([&] {
        for (const int tab : {0, 1, 2}) Set(tab, wanted.choices[tab]);
        TakeStory();
        user.Click(Dialog().cmdOK);
        if (wanted.conflict.empty()) return;
        EXPECT_EQ(
            TakeStory(),
            (Lines{"box stop Trothline: You have configured the same hotkey for both the " + wanted.conflict +
                   " command. Please change your selection as they must be different."}));
        EXPECT_FALSE(program->Hotkeys.Speech.enabled || program->Hotkeys.Screenshot.enabled);
        EXPECT_TRUE(Registered().empty());
        user.Click(Dialog().cmdCancel);
      });
    });
  }
}

TEST_F(frmHotkeyTest, OkStoresAllTabsAndRegistersAgainAndCancelKeepsNothing) {
  const auto change = [&] {
    Set(0, "ec5");
    Set(2, "eas1");
    user.Click(Dialog().chkSticky);
    Set(1, "ecase");
    for (CheckBox* box : {&Dialog().chkNames, &Dialog().chkCounselor, &Dialog().chkPreview}) user.Click(*box);
    user.Click(Dialog().txtCounselor);
    user.Type(L"!  ");
    user.Click(Dialog().txtFileName);
    user.Type(L"x ");
    user.Select(Dialog().cmbPosition, 3);
    desktop.dialogs.AnswerColor(255);
    desktop.dialogs.AnswerColor(std::nullopt);
    for (int click = 0; click < 2; ++click) user.Click(Dialog().picColor);
    TakeStory();
  };
  RunMain([&] {
    InDialog([&] {
      change();
      user.Press(kEscapeKey);
    });
    EXPECT_TRUE(TakeStory().empty());
    EXPECT_TRUE(Registered().empty());
    EXPECT_EQ(program->Screenshots.textColor, 65535u);

    InDialog([&] {
      change();
      EXPECT_TRUE(Registered().empty());
      user.Click(Dialog().cmdOK);
    });
    Lines saved;
    for (const auto& [section, values] : std::vector<std::pair<std::string, Lines>>{
             {"Hotkey", {"Enabled=1", "Control=1", "Alt=0", "Shift=0", "Key=116"}},
             {"Screenshot", {"Hotkey Enabled=0", "Control=1", "Alt=1", "Shift=1", "Key=123"}},
             {"Edit Box", {"Enabled=1", "Control=0", "Alt=1", "Shift=1", "Key=112"}},
             {"Screenshot",
              {"Include Label=1", "Show Preview=1", "Remove Border=0", "Include Names=0", "Include Date=1",
               "Include Counselor=1", "Counselor Name=Counselor!", "Base FileName=TRLSSx", "Label Position=3",
               "Text Color=255"}},
             {"Edit Box", {"Sticky=0"}}})
      for (const std::string& value : values) saved.push_back("save Troth\\" + section + "\\" + value);
    EXPECT_EQ(TakeStory(), saved);
    EXPECT_EQ(Registered(), (Lines{"116/2", "112/5"}));
  });
}

TEST_F(frmHotkeyTest, ShowsNoChoiceForSettingsOutOfRangeAndKeepsThem) {
  Store(L"Hotkey", L"Key", L"-99999999999");
  Store(L"Screenshot", L"Label Position", L"4");
  RunMain([&] {
    InDialog([&] {
      EXPECT_EQ(Dialog().cmbKey.Index(), -1);
      EXPECT_EQ(Dialog().cmbPosition.Index(), -1);
      user.Click(Dialog().cmdOK);
    });
    EXPECT_EQ(program->Screenshots.labelPosition, 4);
    EXPECT_EQ(program->Hotkeys.Speech.key, std::numeric_limits<int>::min());
  });
}

TEST_F(frmHotkeyTest, SaysWhetherEachCombinationWillWork) {
  Store(L"Screenshot", L"Hotkey Enabled", L"1");
  Store(L"Screenshot", L"Key", L"116");
  for (const int modifiers : {0, kHotkeyControl, kHotkeyShift})
    desktop.forms.HoldHotkey(modifiers, kF1Key + 6);
  RunMain([&] {
    const Lines registered = Registered();
    InDialog([&] {
      const auto states = [&] {
        Lines all;
        for (const Label* label : {&Dialog().lblState, &Dialog().lblSState, &Dialog().lblEState})
          all.push_back(Readable(label->Caption()));
        return all;
      };
      EXPECT_EQ(states(), (Lines{"", "Free.", ""})) << "its own hotkey is free to be kept";
      Set(0, "e");
      EXPECT_EQ(states()[0], "Reserved by Windows. Try Ctrl+F12.");
      Set(2, "ec");
      user.Select(Dialog().cmbEKey, 11);
      EXPECT_EQ(states()[0], "Reserved by Windows. Try Shift+F12.");
      EXPECT_EQ(states()[2], "Free.");
      Set(0, "c");
      EXPECT_EQ(states()[0], "Used twice in this dialog. Try Shift+F12.");
      EXPECT_EQ(states()[2], states()[0]);
      Set(0, "c7");
      EXPECT_EQ(states()[0], "Taken by another program. Try Alt+F7.");
      EXPECT_EQ(states()[2], "Free.");
      EXPECT_EQ(Registered(), registered) << "a trial leaves nothing behind";
      user.Press(kEscapeKey);
    });
  });
}

TEST_F(frmHotkeyTest, AKeyThatIsNotOfferedStaysAndARefusalIsShown) {
  Store(L"Hotkey", L"Enabled", L"1");
  Store(L"Hotkey", L"Key", L"70");
  desktop.forms.HoldHotkey(kHotkeyAlt, 70);
  RunMain([&] {
    InDialog([&] {
      EXPECT_EQ(Dialog().cmbKey.Index(), -1);
      user.Click(Dialog().chkAlt);
      user.Click(Dialog().cmdOK);
    });
    EXPECT_EQ(program->Hotkeys.Speech.key, 70);
    EXPECT_TRUE(desktop.dialogs.Shown().empty());
    EXPECT_TRUE(Registered().empty());
    InDialog([&] {
      EXPECT_EQ(Dialog().lblState.Caption(), L"Taken by another program. Try Ctrl+F12.");
      user.Click(Dialog().chkAlt);
      user.Click(Dialog().cmdOK);
    });
    EXPECT_EQ(Registered(), Lines{"70/0"});
  });
}

}  // namespace

}  // namespace troth
