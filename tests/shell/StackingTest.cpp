// The face of the main window, and how it and the windows around it stand in front of the game.
#include "core/WindowPatterns.h"
#include "platform/forms/CommandButton.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class ToolForm final : public Form {
 public:
  explicit ToolForm(Program& program)
      : Form(program.platform.forms, {.name = L"frmTool", .clientSize = {1500, 1500}}) {}
};

class StackingTest : public RunTest {
 protected:
  bool IsTopMost(const Form& form) const { return desktop.forms.Find(form)->IsTopMost(); }

  static std::string Describe(const MenuItem& item) {
    std::string line = HeadlessJournal::Readable(item.Name());
    line += ' ' + HeadlessJournal::Readable(item.Caption());
    if (!item.Visible()) line += " [hidden]";
    return line;
  }
};

TEST_F(StackingTest, TheMainWindowStandsOnTopAsTheOptionSays) {
  for (const wchar_t* stored : {L"0", L"1"}) {
    Store(L"On Top", stored);
    const bool before = stored[0] == L'1';
    RunMain([&] {
      EXPECT_EQ(IsTopMost(Main()), before);
      EXPECT_EQ(program->TopMostState, before ? Stacking::TopMost : Stacking::NotTopMost);
      for (const bool then : {!before, before, !before}) {
        const Rect place = Main().OuterBounds();
        user.Choose(Main().MOptionsTop);
        EXPECT_EQ(Main().MOptionsTop.Checked(), then);
        EXPECT_EQ(IsTopMost(Main()), then);
        EXPECT_EQ(program->TopMostState, then ? Stacking::TopMost : Stacking::NotTopMost);
        EXPECT_EQ(Main().OuterBounds(), place);
      }
    });
    EXPECT_EQ(Stored(L"On Top"), before ? L"0" : L"1");
  }
}

TEST_F(StackingTest, AModalDialogIsNeverCoveredByTheMainWindow) {
  for (const bool onTop : {true, false}) {
    Store(L"On Top", onTop ? L"1" : L"0");
    RunMain([&] {
      for (int opening = 0; opening < 2; ++opening) {
        bool sawAbout = false;
        InAbout([&] {
          sawAbout = true;
          EXPECT_FALSE(IsTopMost(Main()));
          EXPECT_EQ(Shown(), (Story{"frmAbout", "frmTroth"}));
          EXPECT_EQ(program->TopMostState, onTop ? Stacking::TopMost : Stacking::NotTopMost);
        });
        EXPECT_TRUE(sawAbout);
        EXPECT_EQ(IsTopMost(Main()), onTop);
        EXPECT_EQ(Shown(), (Story{"frmTroth"}));
      }
    });
  }
}

TEST_F(StackingTest, AToolWindowKeepsItsPlaceUntilItIsOpenedAgain) {
  RunMain([&] {
    ShowToolWindow<ToolForm>(*program, &Main());
    ToolForm& tool = *program->Opened<ToolForm>();
    EXPECT_TRUE(IsTopMost(tool));
    user.CloseWindow(tool);
    ShowToolWindow<ToolForm>(*program, &Main());
    ToolForm& again = *program->Opened<ToolForm>();
    user.Click(Main().txtNext);  // gives the menu bar the keyboard's window
    user.Choose(Main().MOptionsTop);
    EXPECT_FALSE(IsTopMost(Main()));
    EXPECT_TRUE(IsTopMost(again));
    // Opened again while it is open: no second one, and now at the height of the main window.
    ShowToolWindow<ToolForm>(*program, &Main());
    EXPECT_EQ(program->Opened<ToolForm>(), &again);
    EXPECT_FALSE(IsTopMost(again));
    user.Click(Main().txtNext);
    user.Choose(Main().MOptionsTop);
    EXPECT_TRUE(IsTopMost(Main()));
    EXPECT_FALSE(IsTopMost(again));
    user.CloseWindow(again);
    ShowToolWindow<ToolForm>(*program, &Main());
    EXPECT_TRUE(IsTopMost(*program->Opened<ToolForm>()));
    user.Click(Main().txtNext);
  });
  EXPECT_EQ(program->Opened<ToolForm>(), nullptr) << "goes with the main window that owns it";
}

TEST_F(StackingTest, AToolWindowWithoutAnOwnerOutlivesTheMainWindow) {
  RunMain([&] {
    ShowToolWindow<ToolForm>(*program, nullptr);
    user.Click(Main().txtNext);
    user.Choose(Main().MFileQuit);
    EXPECT_EQ(Shown(), (Story{"frmTool"}));
    user.CloseWindow(*program->Opened<ToolForm>());
  });
}

TEST_F(StackingTest, TheMenuTreeIsTheAgreedOne) {
  const struct {
    const char* menu;
    Story items;
  } tree[] = {
      {"MFile &File",
       {"MFileSaveas Save Script As...", "MFileScript &Script Browser", "MFileWizard &Wedding Script Wizard",
        "MFileSep1 -", "MFileQuit E&xit"}},
      {"MView &View",
       {"MOptionsVertical &Vertical Layout", "MOptionsTiny &Tiny Window", "MViewIndex &Index Window",
        "MViewButtonBar &Button Bar", "MViewGestureBar &Gesture Bar", "MViewEdit &Edit Window",
        "MViewDynamic &Dynamic Variables...", "MViewAddressBook &Address Book... [hidden]",
        "MViewKMBook &KMBook"}},
      {"MOPtions &Options",
       {"MOptionsTop &Always On Top", "MOptionsPopup &Popup Messages",
        "MOptionsAuto Autoter&minate Pending Speech", "MOptionsLearning &Learning Mode",
        "MOptionsTranslate Ena&ble Special Character Translation",
        "MOptionsUnicode Enable &Unicode Characters", "MOptionsSep1 -", "MOptionsEmote Skip &Emote",
        "MOptionsAddParty A&dd To Party...", "MOptionsCounselor S&kip Party Messages", "MOptionsSep2 -",
        "MOptionsHotkey &Hotkeys And Screenshots...", "MOptionsAutoPatch Aut&oPatch... [hidden]",
        "MOptionsDefine &Define User Variables...", "MOptionsRestore &Restore Default Selection",
        "MOptionsUnattanded U&nattended Speech..."}},
      {"MFileScreen &Screen", {"MScreenScresnshot &Take Screenshot"}},
      {"MResize &Resize [hidden]", {"MResizeOriginal &Restore Original Size"}},
      {"MHelp &Help",
       {"MHelpContents &Contents...", "MHelpSep1 -", "MFileAbout &About Trothline...",
        "MHelpCredits C&redits..."}},
  };
  RunMain([&] {
    const auto& menus = Main().Menus();
    ASSERT_EQ(menus.size(), std::size(tree));
    for (std::size_t i = 0; i < menus.size(); ++i) {
      EXPECT_EQ(Describe(*menus[i]), tree[i].menu);
      Story items;
      for (const MenuItem* item : menus[i]->Children()) items.push_back(Describe(*item));
      EXPECT_EQ(items, tree[i].items);
    }
  });
}

// An entry or a button that can be chosen does something.
TEST_F(StackingTest, EveryEnabledCommandDoesSomething) {
  const auto lookAtButtons = [](const Form& form) {
    for (Control* control : form.Controls()) {
      const auto* button = dynamic_cast<const CommandButton*>(control);
      if (button && button->Enabled()) {
        EXPECT_TRUE(button->OnClick) << HeadlessJournal::Readable(form.Name() + L' ' + button->Name());
      }
    }
  };
  desktop.forms.WhenModal(L"frmIntro", [&] {
    lookAtButtons(Intro());
    user.Click(Intro().cmdOK);
  });
  Run([&] {
    lookAtButtons(Tip());
    user.Click(Tip().cmdOK);
    lookAtButtons(Main());
    InAbout([&] { lookAtButtons(About()); });
    for (const MenuItem* menu : Main().Menus()) {
      EXPECT_TRUE(menu->Enabled());
      for (const MenuItem* item : menu->Children()) {
        if (item->IsSeparator() || !item->Visible() || !menu->Visible() || !item->Enabled()) continue;
        EXPECT_TRUE(item->OnClick) << HeadlessJournal::Readable(item->Name());
      }
    }
    user.Choose(Main().MFileQuit);
  });
}

TEST_F(StackingTest, TheControlsStandWhereTheyBelong) {
  const struct {
    const wchar_t* name;
    Rect bounds;
    const wchar_t* caption;
    const wchar_t* toolTip;
    bool visible = true;
  } expected[] = {
      {L"lblGroom", {120, 120, 975, 255}, L"&Groom Name", L""},
      {L"txtGroom",
       {120, 360, 2775, 285},
       L"",
       L"Enter here the groom name. Script will change as soon as the text box loses focus"},
      {L"Label2", {120, 720, 975, 255}, L"&Bride Name", L""},
      {L"txtBride",
       {120, 960, 2775, 285},
       L"",
       L"Enter here the bridename. Script will change as soon as the text box loses focus"},
      {L"Label3", {120, 1320, 1695, 255}, L"S&cript File", L""},
      {L"txtFile", {120, 1560, 2295, 285}, L"", L"Current Script File"},
      {L"cmdBrowse", {2400, 1560, 495, 315}, L"...", L"Script Browser"},
      {L"Label1", {120, 1920, 1695, 255}, L"&Next Sentence", L""},
      {L"txtNext", {120, 2160, 2775, 285}, L"", L"Next sentence to be spoken"},
      {L"cmdSpeak", {120, 2520, 735, 495}, L"&Speak", L"Sends the selected text to the Kestrel Moors window"},
      {L"chkYell",
       {960, 2520, 1335, 255},
       L"&Yell ('!' Prefix)",
       L"Use ! (yell) in front of each sentence spoken"},
      {L"lblPrefix", {960, 2760, 495, 255}, L"&Prefix", L""},
      {L"txtPrefix",
       {1440, 2760, 1455, 285},
       L"",
       L"Use this box to prefix every sentence with a text of your choice"},
      {L"lblWedding", {3000, 120, 1335, 255}, L"&Wedding Script", L""},
      {L"lstWedding", {3000, 360, 5055, 2760}, L"", L""},
      {L"lblUnicode", {1320, 0, 255, 255}, L"U", L"Unicode text is disabled", false},
      {L"lblTranslation", {1560, 0, 255, 255}, L"T", L"Special character translation is disabled", false},
      {L"lblDebug", {1920, 0, 975, 255}, L"", L"", false},
  };
  RunMain([&] {
    EXPECT_EQ(Main().Caption(), L"Trothline");
    EXPECT_EQ(Main().Options().clientSize, (Size{8160, 3225}));
    EXPECT_EQ(Main().Options().border, BorderStyle::FixedSingle);
    const auto& controls = Main().Controls();
    ASSERT_EQ(controls.size(), std::size(expected));
    for (std::size_t i = 0; i < controls.size(); ++i) {
      SCOPED_TRACE(HeadlessJournal::Readable(expected[i].name));
      EXPECT_EQ(controls[i]->Name(), expected[i].name);
      EXPECT_EQ(controls[i]->Bounds(), expected[i].bounds);
      EXPECT_EQ(controls[i]->CaptionText(), expected[i].caption);
      EXPECT_EQ(controls[i]->ToolTip(), expected[i].toolTip);
      EXPECT_EQ(controls[i]->Visible(), expected[i].visible);
    }
    EXPECT_TRUE(Main().txtFile.ReadOnly());
    EXPECT_TRUE(Main().lstWedding.HasTicks());
  });
}

}  // namespace
}  // namespace troth
