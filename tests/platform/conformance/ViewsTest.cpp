// Tree, list with pictures, status bar, and a box of several lines.
#include "platform/forms/ListView.h"
#include "platform/forms/StatusBar.h"
#include "platform/forms/TreeView.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

constexpr int kDelete = 46;
constexpr int kF2 = 113;

// Tab stops in order: trvDirs, lstvFiles, txtLines, cmdOk.
class ViewsForm final : public TestForm {
 public:
  explicit ViewsForm(Platform& platform) : TestForm(platform, L"frmViews") {}

  TreeView trvDirs{*this, {.name = L"trvDirs", .bounds = {120, 120, 1800, 3000}}};
  ListView lstvFiles{*this,
                     {.name = L"lstvFiles", .toolTip = L"all files", .bounds = {2040, 120, 1800, 3000}}};
  TextBox txtLines{
      *this, {.name = L"txtLines", .bounds = {3960, 120, 1800, 3000}, .readOnly = true, .isMultiLine = true}};
  StatusBar stsBar{*this, {.name = L"stsBar", .text = L"ready", .bounds = {0, 4500, 6000, 300}}};
  CommandButton cmdOk{
      *this, {.name = L"cmdOk", .caption = L"OK", .bounds = {120, 3600, 1200, 375}, .isCancel = true}};
};

class Views : public ConformanceTest {
 protected:
  ViewsForm form{platform};

  void SetUp() override {
    TreeView& tree = form.trvDirs;
    tree.OnNodeClick = [this](int node) { form.Write("node " + std::to_string(node)); };
    form.lstvFiles.OnItemClick = [this] { form.Write("item " + std::to_string(form.lstvFiles.Index())); };
    form.lstvFiles.OnDoubleClick = [this] { form.Write("open " + std::to_string(form.lstvFiles.Index())); };
    form.lstvFiles.OnLabelEdited = [this](const std::wstring& text, bool& cancel) {
      form.Write("label " + Narrow(text));
      cancel = text == L"taken";
    };
    form.cmdOk.OnClick = form.Writer("ok");
    Show(form);
    const int root = tree.Add(-1, L"C:\\s", L"Scripts");
    tree.Add(root, L"C:\\s\\a", L"Abbey");
    const int moor = tree.Add(root, L"C:\\s\\m", L"Moor & Fen");
    tree.Add(moor, L"C:\\s\\m\\d", L"Deep");
    tree.Select(root);
    form.lstvFiles.SetEntries(
        {{L"1", L"one", L"tip of one"}, {L"2", L"two", L"tip of two"}, {L"3", L"three"}}, 0);
    form.TakeHeard();
  }
};

TEST_F(Views, TreeShowsEachNodeAtOnceAndTellsClicksAndKeys) {
  TreeView& tree = form.trvDirs;
  EXPECT_EQ(desktop->ShownNodes(tree),
            (std::vector<std::wstring>{L"Scripts", L" Abbey", L" Moor & Fen", L"  Deep"}));
  const struct {
    std::function<void()> act;
    std::wstring shown;
    Lines heard;
  } steps[] = {{[&] { tree.Select(0); }, L"Scripts", {}},
               {[&] { desktop->Click(tree, 2); }, L"Moor & Fen", {"node 2"}},
               {[&] { desktop->Click(tree, 2); }, L"Moor & Fen", {"node 2"}},
               {[&] { desktop->Press(kDown); }, L"Deep", {"node 3"}},
               {[&] { desktop->Press(kUp); }, L"Moor & Fen", {"node 2"}},
               {[&] { tree.Select(9); }, L"", {}},
               {[&] { tree.Clear(); }, L"", {}},
               {[&] { tree.Select(tree.Add(-1, L"k", L"New")); }, L"New", {}}};
  for (const auto& step : steps) {
    step.act();
    EXPECT_EQ(desktop->ShownNode(tree), step.shown);
    EXPECT_EQ(form.TakeHeard(), step.heard) << Narrow(step.shown);
  }
  EXPECT_EQ(desktop->ShownNodes(tree), std::vector<std::wstring>{L"New"});
  EXPECT_EQ(tree.KeyOf(0), L"k");
}

TEST_F(Views, ListTellsClicksWithEitherButtonAndKeysThatMoveTheSelection) {
  ListView& list = form.lstvFiles;
  const struct {
    std::function<void()> act;
    int index;
    Lines heard;
  } steps[] = {{[&] { list.SetIndex(1); }, 1, {}},
               {[&] { desktop->Click(list, 1); }, 1, {"item 1"}},
               {[&] { desktop->Click(list, 2); }, 2, {"item 2"}},
               {[&] { desktop->Press(kUp); }, 1, {"item 1"}},
               {[&] { desktop->Press(kHome); }, 0, {"item 0"}},
               {[&] { desktop->Press(kUp); }, 0, {}},
               {[&] { desktop->Press(kEnter); }, 0, {"open 0"}},
               {[&] { desktop->RightClick(list, 1); }, 1, {"item 1"}},
               {[&] { desktop->DoubleClick(list, 2); }, 2, {"item 2", "open 2"}},
               {[&] { desktop->RightClick(list, -1); }, -1, {"item -1"}},
               {[&] { desktop->Click(list, -1); }, -1, {"item -1"}},
               {[&] {
                  list.SetEntries({{L"4", L"four"}}, 0);
                },
                0,
                {}},
               {[&] { list.SetEntries({}); }, -1, {}},
               {[&] { desktop->RightClick(list, -1); }, -1, {"item -1"}},
               {[&] { desktop->DoubleClick(list, -1); }, -1, {"item -1"}}};
  int number = 0;
  for (const auto& step : steps) {
    SCOPED_TRACE("step " + std::to_string(number++));
    step.act();
    EXPECT_EQ(list.Index(), step.index);
    EXPECT_EQ(desktop->ShownIndex(list), step.index);
    EXPECT_EQ(form.TakeHeard(), step.heard);
  }
}

TEST_F(Views, EachEntryHasItsToolTipAndTheGroundThatOfTheList) {
  EXPECT_EQ(desktop->ShownToolTip(form.lstvFiles, 1), L"tip of two");
  EXPECT_EQ(desktop->ShownToolTip(form.lstvFiles, 0), L"tip of one");
  EXPECT_EQ(desktop->ShownToolTip(form.lstvFiles, -1), L"all files");
}

TEST_F(Views, TextOfAnEntryIsEditedInPlaceAndTheChangeCanBeRefused) {
  ListView& list = form.lstvFiles;
  const struct {
    std::optional<std::wstring> typed;
    std::wstring shown;
    Lines heard;
  } cases[] = {{L"zwei.txt", L"zwei.txt", {"label zwei.txt"}},
               {L"taken", L"zwei.txt", {"label taken"}},
               {L"zwei.txt", L"zwei.txt", {}},
               {std::nullopt, L"zwei.txt", {}}};
  for (const auto& edit : cases) {
    form.trvDirs.SetFocus();
    list.StartLabelEdit(1);
    Settle();
    EXPECT_EQ(list.Edited(), 1);
    desktop->EndLabelEdit(list, edit.typed);
    EXPECT_EQ(list.Edited(), -1);
    EXPECT_EQ(desktop->ShownEntries(list), (std::vector<std::wstring>{L"one", edit.shown, L"three"}));
    EXPECT_EQ(form.TakeHeard(), edit.heard);
    EXPECT_TRUE(desktop->HasKeyboard(list));
  }
  EXPECT_ANY_THROW(desktop->EndLabelEdit(list, L"nothing is edited"));
}

TEST_F(Views, KeysOfTheListReachItsHandlerButNotWhileATextIsEdited) {
  ListView& list = form.lstvFiles;
  list.OnKeyDown = [this](KeyPress& press) { form.Write("key " + std::to_string(press.keyCode)); };
  desktop->Click(list, 0);
  form.TakeHeard();
  desktop->Press(kF2);
  desktop->Press(kDelete);
  EXPECT_EQ(form.TakeHeard(), (Lines{"key 113", "key 46"}));
  list.StartLabelEdit(0);
  Settle();
  desktop->EndLabelEdit(list, std::nullopt);
  EXPECT_EQ(form.TakeHeard(), Lines{}) << "Esc belongs to the editor, not to the cancel button";
}

TEST_F(Views, BoxOfSeveralLinesLetsTabOnAndEscReachTheCancelButton) {
  const std::wstring lines = L"first\r\nsecond\r\n\r\n" + std::wstring(30000, L'x') + L"\r\n";
  form.txtLines.SetText(lines);
  EXPECT_EQ(desktop->ShownText(form.txtLines), lines);
  form.lstvFiles.SetFocus();
  desktop->Press(kTab);
  EXPECT_TRUE(desktop->HasKeyboard(form.txtLines));
  desktop->Press(kEnter);
  desktop->Press(kEscape);
  EXPECT_EQ(form.TakeHeard(), Lines{"ok"});
  desktop->Press(kTab);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdOk));
  EXPECT_EQ(desktop->ShownText(form.txtLines), lines);
}

}  // namespace

}  // namespace troth
