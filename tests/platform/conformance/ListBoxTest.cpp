// Lists: when OnClick comes, what is selected and ticked, by mouse, keyboard and program.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class ListBoxes : public ConformanceTest {
 protected:
  DeskForm form{platform};
  ListBox& plain = form.lstPlain;
  ListBox& ticks = form.lstTicks;

  void SetUp() override {
    plain.SetEntries(Entries(5));
    ticks.SetEntries(Entries(5));
    plain.OnClick = [this] { form.Write("plain " + std::to_string(plain.Index())); };
    ticks.OnClick = [this] { form.Write("ticks " + std::to_string(ticks.Index())); };
    ticks.OnTick = [this](int index) { form.Write("tick " + std::to_string(index)); };
    Show(form);
    form.TakeHeard();
  }
  void ExpectIndex(const ListBox& list, int index) {
    EXPECT_EQ(list.Index(), index);
    EXPECT_EQ(desktop->ShownIndex(list), index);
  }
};

TEST_F(ListBoxes, RaiseClickForEachChangeOfTheIndexByTheProgram) {
  const struct {
    int set;
    int becomes;
    Lines heard;
  } steps[] = {{2, 2, {"plain 2"}}, {2, 2, {}},   {0, 0, {"plain 0"}}, {-1, -1, {"plain -1"}},
               {-1, -1, {}},        {99, -1, {}}, {4, 4, {"plain 4"}}, {5, -1, {"plain -1"}}};
  for (const auto& step : steps) {
    SCOPED_TRACE(step.set);
    plain.SetIndex(step.set);
    ExpectIndex(plain, step.becomes);
    EXPECT_EQ(form.TakeHeard(), step.heard);
  }
}

TEST_F(ListBoxes, RaiseClickForEachChangeOfTheIndexByTheUser) {
  for (ListBox* list : {&plain, &ticks}) {
    const std::string name = list == &plain ? "plain " : "ticks ";
    desktop->Select(*list, 3);
    ExpectIndex(*list, 3);
    EXPECT_EQ(form.TakeHeard(), Lines{name + "3"});
    desktop->Select(*list, 3);
    EXPECT_EQ(form.TakeHeard(), Lines{});
    desktop->Select(*list, 0);
    ExpectIndex(*list, 0);
    EXPECT_EQ(form.TakeHeard(), Lines{name + "0"});
  }
}

TEST_F(ListBoxes, ReplacingOrClearingDeselectsAndRaisesClickOnlyIfSomethingWasSelected) {
  plain.SetEntries(Entries(3));
  plain.Clear();
  plain.SetEntries(Entries(3));
  EXPECT_EQ(form.TakeHeard(), Lines{});
  plain.SetIndex(2);
  form.TakeHeard();
  plain.SetEntries(Entries(4));
  ExpectIndex(plain, -1);
  EXPECT_EQ(desktop->ShownCount(plain), 4);
  EXPECT_EQ(form.TakeHeard(), Lines{"plain -1"});
  plain.SetIndex(2);
  form.TakeHeard();
  plain.Clear();
  ExpectIndex(plain, -1);
  EXPECT_EQ(desktop->ShownCount(plain), 0);
  EXPECT_EQ(form.TakeHeard(), Lines{"plain -1"});
}

TEST_F(ListBoxes, AppendingKeepsTheIndexAndTheTicks) {
  ticks.SetIndex(1);
  ticks.SetTicked(4, true);
  form.TakeHeard();
  ticks.Append(L"& last");
  ExpectIndex(ticks, 1);
  EXPECT_EQ(desktop->ShownCount(ticks), 6);
  EXPECT_EQ(desktop->ShownEntryText(ticks, 5), L"& last");
  EXPECT_TRUE(desktop->ShownTick(ticks, 4));
  EXPECT_FALSE(desktop->ShownTick(ticks, 5));
  EXPECT_EQ(form.TakeHeard(), Lines{});
}

TEST_F(ListBoxes, RemovingKeepsTheSelectedEntryUnlessItIsTheOneThatGoes) {
  const struct {
    int remove;
    int becomes;
    Lines heard;
  } steps[] = {{3, 2, {}}, {0, 1, {}}, {9, 1, {}}, {1, -1, {"ticks -1"}}, {0, -1, {}}};
  ticks.SetTicked(2, true);
  ticks.SetIndex(2);
  form.TakeHeard();
  for (const auto& step : steps) {
    SCOPED_TRACE(step.remove);
    ticks.Remove(step.remove);
    ExpectIndex(ticks, step.becomes);
    EXPECT_TRUE(step.becomes < 0 || desktop->ShownTick(ticks, step.becomes))
        << "the tick goes with its entry";
    EXPECT_EQ(form.TakeHeard(), step.heard);
  }
  EXPECT_EQ(desktop->ShownCount(ticks), 1);
  EXPECT_EQ(desktop->ShownEntryText(ticks, 0), L"entry 4");
}

TEST_F(ListBoxes, SortedOneKeepsItsOrderAndItsSelectedEntry) {
  TestForm sorted(platform, L"frmSorted");
  ListBox list{sorted, {.name = L"lstSorted", .bounds = {120, 120, 2700, 3000}, .isSorted = true}};
  list.OnClick = [&] { sorted.Write("at " + std::to_string(list.Index())); };
  list.SetEntries({{L"ring"}, {L"Ale"}, {L"Moss"}}, 1);
  Show(sorted);
  sorted.TakeHeard();
  const auto expectShown = [&](const std::vector<std::wstring>& texts) {
    ASSERT_EQ(desktop->ShownCount(list), static_cast<int>(texts.size()));
    for (int i = 0; i < list.Count(); ++i)
      EXPECT_EQ(desktop->ShownEntryText(list, i), texts[static_cast<std::size_t>(i)]);
  };
  expectShown({L"Ale", L"Moss", L"ring"});
  ExpectIndex(list, 1);
  list.Append(L"hall");
  list.Append(L"MOSS");
  expectShown({L"Ale", L"hall", L"Moss", L"MOSS", L"ring"});
  ExpectIndex(list, 2);
  EXPECT_EQ(sorted.TakeHeard(), Lines{});
}

TEST_F(ListBoxes, TickOfTheUserIsToldAndLeavesTheIndex) {
  ticks.SetIndex(1);
  form.TakeHeard();
  desktop->ClickTick(ticks, 3);
  EXPECT_TRUE(ticks.Ticked(3));
  EXPECT_TRUE(desktop->ShownTick(ticks, 3));
  ExpectIndex(ticks, 1);
  EXPECT_EQ(form.TakeHeard(), Lines{"tick 3"});
  desktop->ClickTick(ticks, 3);
  desktop->ClickTick(ticks, 1);
  EXPECT_FALSE(desktop->ShownTick(ticks, 3));
  EXPECT_TRUE(desktop->ShownTick(ticks, 1));
  ExpectIndex(ticks, 1);
  EXPECT_EQ(form.TakeHeard(), (Lines{"tick 3", "tick 1"}));
}

TEST_F(ListBoxes, SpaceTicksTheSelectedEntryWhereThereAreTicks) {
  desktop->Select(ticks, 2);
  form.TakeHeard();
  desktop->Press(kSpace);
  EXPECT_TRUE(desktop->ShownTick(ticks, 2));
  desktop->Press(kDown);
  desktop->Press(kSpace);
  EXPECT_TRUE(desktop->ShownTick(ticks, 3));
  EXPECT_EQ(form.TakeHeard(), (Lines{"tick 2", "ticks 3", "tick 3"}));
  // The tick that the mouse set elsewhere does not draw Space after it.
  desktop->ClickTick(ticks, 0);
  desktop->Press(kSpace);
  EXPECT_TRUE(ticks.Ticked(0));
  EXPECT_FALSE(ticks.Ticked(3));
  form.TakeHeard();
  desktop->Select(plain, 1);
  desktop->Press(kSpace);
  EXPECT_EQ(form.TakeHeard(), Lines{"plain 1"});
  ExpectIndex(plain, 1);
}

TEST_F(ListBoxes, ArrowsHomeAndEndWalkAndStopAtTheEnds) {
  for (ListBox* list : {&plain, &ticks}) {
    const std::string name = list == &plain ? "plain " : "ticks ";
    desktop->Select(*list, 1);
    form.TakeHeard();
    const struct {
      int key;
      int index;
    } steps[] = {{kDown, 2}, {kUp, 1},   {kUp, 0},   {kUp, 0},  {kEnd, 4},
                 {kEnd, 4},  {kDown, 4}, {kHome, 0}, {kDown, 1}};
    int before = 1;
    for (const auto& step : steps) {
      desktop->Press(step.key);
      ExpectIndex(*list, step.index);
      EXPECT_EQ(form.TakeHeard(), step.index == before ? Lines{} : Lines{name + std::to_string(step.index)});
      before = step.index;
    }
  }
}

TEST_F(ListBoxes, DoubleClickSelectsFirst) {
  for (ListBox* list : {&plain, &ticks}) {
    const std::string name = list == &plain ? "plain " : "ticks ";
    list->OnDoubleClick = form.Writer("double");
    desktop->DoubleClick(*list, 2);
    EXPECT_EQ(form.TakeHeard(), (Lines{name + "2", "double"}));
    desktop->DoubleClick(*list, 2);
    EXPECT_EQ(form.TakeHeard(), Lines{"double"});
  }
}

TEST_F(ListBoxes, HoldTheLargestScript) {
  constexpr int kRows = 32767;
  std::vector<ListEntry> entries = Entries(kRows);
  entries[20000].ticked = true;
  ticks.SetEntries(std::move(entries));
  ticks.SetIndex(kRows - 1);
  Settle();
  EXPECT_EQ(desktop->ShownCount(ticks), kRows);
  ExpectIndex(ticks, kRows - 1);
  EXPECT_EQ(desktop->ShownEntryText(ticks, kRows - 1), L"entry 32766");
  EXPECT_TRUE(desktop->ShownTick(ticks, 20000));
  EXPECT_FALSE(desktop->ShownTick(ticks, 20001));
  desktop->Select(ticks, 20001);
  desktop->Press(kSpace);
  desktop->Press(kHome);
  EXPECT_TRUE(ticks.Ticked(20001));
  ExpectIndex(ticks, 0);
}

}  // namespace

}  // namespace troth
