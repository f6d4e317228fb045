// The face of the main window, and how it and the windows around it stand in front of the game.
#include "core/WindowPatterns.h"
#include "livetools/frmIndex.h"
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

TEST_F(StackingTest, AModalDialogIsNeverCoveredByTheMainWindowAndHasItsHelpTopic) {
  constexpr struct {
    MenuItem MainWindow::*item;
    const wchar_t* dialog;
    int helpTopic;
    int closingKey = kEscapeKey;
  } kDialogs[] = {
      {&MainWindow::MFileScript, L"frmBrowse", 5},    {&MainWindow::MFileWizard, L"frmWizard", 20},
      {&MainWindow::MFileAbout, L"frmAbout", 0},      {&MainWindow::MHelpCredits, L"frmCredits", 0},
      {&MainWindow::MViewDynamic, L"frmDynamic", 2},  {&MainWindow::MOptionsDefine, L"frmVars", 2, kEnterKey},
      {&MainWindow::MOptionsHotkey, L"frmHotkey", 9}, {&MainWindow::MOptionsUnattanded, L"frmMacro", 1}};
  files.Put(L"C:\\Games\\Trothline\\wedscripts\\Vows.txt", "I do.");
  Store(L"Last Script", L"C:\\Games\\Trothline\\wedscripts\\Vows.txt");
  for (const bool onTop : {true, false}) {
    Store(L"On Top", onTop ? L"1" : L"0");
    RunMain([&] {
      EXPECT_EQ(Main().Options().helpContext, 3);
      for (const auto& each : kDialogs) {
        SCOPED_TRACE(Readable(each.dialog));
        bool isShown = false;
        desktop.forms.WhenModal(each.dialog, [&] {
          isShown = true;
          EXPECT_FALSE(IsTopMost(Main()));
          EXPECT_EQ(Windows().at(1), "frmTroth");
          EXPECT_EQ(desktop.forms.Active()->Portable().Options().helpContext, each.helpTopic);
          user.Press(each.closingKey);
        });
        user.Choose(Main().*each.item);
        EXPECT_TRUE(isShown);
        EXPECT_EQ(IsTopMost(Main()), onTop);
        EXPECT_EQ(Windows(), (Lines{"frmTroth"}));
      }
    });
  }
}

TEST_F(StackingTest, AToolWindowIsAsHighAsTheMainWindowAndHasItsHelpTopic) {
  constexpr std::pair<MenuItem MainWindow::*, int> kTools[] = {{&MainWindow::MViewKMBook, 7},
                                                               {&MainWindow::MViewEdit, 102},
                                                               {&MainWindow::MViewButtonBar, 101},
                                                               {&MainWindow::MViewGestureBar, 103}};
  RunMain([&] {
    for (const bool onTop : {true, false}) {
      for (const auto& [item, topic] : kTools) {
        user.Click(Main().txtNext);  // gives the menu bar the keyboard's window
        user.Choose(Main().*item);
        Form& tool = desktop.forms.Active()->Portable();
        EXPECT_EQ(tool.Options().helpContext, topic);
        EXPECT_EQ(IsTopMost(tool), onTop) << topic;
        tool.Unload();
      }
      user.Click(Main().txtNext);
      if (onTop) user.Choose(Main().MOptionsTop);
    }
    EXPECT_EQ(program->Opened<frmIndex>()->Options().helpContext, 3);
  });
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

}  // namespace
}  // namespace troth
