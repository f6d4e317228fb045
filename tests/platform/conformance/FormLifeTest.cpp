// Loading, showing, hiding and unloading.
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

using FormLife = ConformanceTest;

TEST_F(FormLife, LoadsOnceAndHasItsControlsByThen) {
  DeskForm form(platform);
  std::wstring shownInLoad;
  form.whenLoading = [&] {
    form.txtName.SetText(L"Rowan");
    shownInLoad = desktop->ShownText(form.txtName);
  };
  EXPECT_FALSE(form.IsLoaded());
  form.Load();
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(desktop->ShownVisible(form));
  EXPECT_EQ(shownInLoad, L"Rowan");
  form.Load();
  Show(form);
  Show(form);
  EXPECT_TRUE(desktop->ShownVisible(form));
  EXPECT_EQ(form.TakeHeard(), Lines{"load"});
}

TEST_F(FormLife, HearsNothingBeforeItIsLoadedButKeepsWhatWasSet) {
  DeskForm form(platform);
  form.txtName.OnChange = form.Writer("change");
  form.lstTicks.OnClick = form.Writer("click");
  form.txtName.SetText(L"Rowan & Ash");
  form.lstTicks.SetEntries(Entries(3));
  form.lstTicks.SetIndex(1);
  form.lstTicks.SetTicked(2, true);
  form.chkLoud.SetTicked(true);
  form.cmdGo.SetCaption(L"Go on");
  form.SetCaption(L"Ceremony");
  EXPECT_EQ(form.TakeHeard(), Lines{});
  Show(form);
  EXPECT_EQ(form.TakeHeard(), Lines{"load"});
  EXPECT_EQ(desktop->ShownText(form.txtName), L"Rowan & Ash");
  EXPECT_EQ(desktop->ShownCount(form.lstTicks), 3);
  EXPECT_EQ(desktop->ShownIndex(form.lstTicks), 1);
  EXPECT_FALSE(desktop->ShownTick(form.lstTicks, 1));
  EXPECT_TRUE(desktop->ShownTick(form.lstTicks, 2));
  EXPECT_TRUE(desktop->ShownTick(form.chkLoud));
  EXPECT_EQ(desktop->ShownCaption(form.cmdGo), L"Go on");
  EXPECT_EQ(desktop->ShownCaption(form), L"Ceremony");
}

TEST_F(FormLife, TellsTheReasonWhenItIsClosed) {
  DeskForm form(platform);
  Show(form);
  form.TakeHeard();
  desktop->CloseWindow(form);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(form.TakeHeard(), (Lines{"query by user", "unload"}));
  Show(form);
  EXPECT_EQ(form.TakeHeard(), Lines{"load"});
  form.Unload();
  EXPECT_EQ(form.TakeHeard(), (Lines{"query by program", "unload"}));
}

TEST_F(FormLife, StaysAndHearsWhenItsQuestionIsAnsweredWithCancel) {
  DeskForm form(platform);
  form.cmdGo.OnClick = form.Writer("go");
  form.whenAsked = [](bool& cancel) { cancel = true; };
  Show(form);
  form.TakeHeard();
  desktop->CloseWindow(form);
  form.Unload();
  EXPECT_TRUE(desktop->ShownVisible(form));
  desktop->Click(form.cmdGo);
  EXPECT_EQ(form.TakeHeard(), (Lines{"query by user", "query by program", "go"}));
  form.whenAsked = {};
  desktop->CloseWindow(form);
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormLife, ShowsAtOnceWhatTheProgramChanges) {
  DeskForm form(platform);
  Show(form);
  form.SetCaption(L"Speaking: \"vows\" & more");
  form.lblName.SetCaption(L"&Bride");
  form.txtName.SetToolTip(L"Who speaks && where");
  form.cmdGo.SetCaption(L"St&op");
  form.cmdGo.SetEnabled(false);
  form.cmdGhost.SetVisible(true);
  form.lstPlain.SetVisible(false);
  form.txtName.SetBounds({120, 4300, 3000, 330});
  form.txtName.SetBackColor(0x00C0FFFFu);
  EXPECT_EQ(desktop->ShownCaption(form), L"Speaking: \"vows\" & more");
  EXPECT_EQ(desktop->ShownCaption(form.lblName), L"&Bride");
  EXPECT_EQ(desktop->ShownCaption(form.cmdGo), L"St&op");
  EXPECT_EQ(desktop->ShownToolTip(form.txtName), L"Who speaks && where");
  EXPECT_EQ(desktop->ShownToolTip(form.cmdGo), L"");
  EXPECT_FALSE(desktop->ShownEnabled(form.cmdGo));
  EXPECT_TRUE(desktop->ShownEnabled(form.cmdStop));
  EXPECT_TRUE(desktop->ShownVisible(form.cmdGhost));
  EXPECT_FALSE(desktop->ShownVisible(form.lstPlain));
  desktop->Click(form.txtName);
  desktop->Type(L"moved");
  EXPECT_EQ(form.txtName.Text(), L"moved");
}

TEST_F(FormLife, WithoutACloseBoxOnlyTheProgramClosesIt) {
  class Open final : public Form {
   public:
    explicit Open(Platform& platform)
        : Form(platform.forms,
               {.name = L"frmOpen", .caption = L"Open", .clientSize = {3000, 1500}, .hasCloseBox = false}) {}
  } form(platform);
  Show(form);
  desktop->CloseWindow(form);
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_TRUE(desktop->ShownVisible(form));
  form.Unload();
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormLife, OwnedFormStaysAboveItsOwnerAndGoesWithIt) {
  DeskForm owner(platform);
  DialogForm tool(platform);
  Show(owner);
  Show(tool, &owner);
  EXPECT_TRUE(desktop->IsAbove(tool, owner));
  desktop->Click(owner.cmdGo);
  EXPECT_TRUE(desktop->IsActive(owner));
  EXPECT_TRUE(desktop->IsAbove(tool, owner));
  owner.whenUnloading = [&] { owner.Write(tool.IsLoaded() ? "tool still there" : "tool gone before"); };
  owner.TakeHeard();
  owner.Unload();
  EXPECT_EQ(owner.TakeHeard(), (Lines{"query by program", "unload", "tool still there"}));
  EXPECT_EQ(tool.TakeHeard(), (Lines{"load", "query by program", "unload"}));
  EXPECT_FALSE(tool.IsLoaded());
  EXPECT_FALSE(desktop->ShownVisible(tool));
}

TEST_F(FormLife, FormOfAHiddenOwnerLeavesTheKeyboardToIt) {
  DeskForm owner(platform);
  DialogForm tool(platform);
  tool.WatchFocus();
  owner.Load();
  tool.Show(&owner);
  EXPECT_TRUE(desktop->ShownVisible(tool));
  Show(owner);
  EXPECT_TRUE(desktop->IsActive(owner));
  EXPECT_EQ(tool.activations, 0);
  EXPECT_EQ(tool.TakeHeard(), Lines{"load"});
  owner.Unload();
}

TEST_F(FormLife, RunEndsWhenTheLastFormIsGone) {
  DeskForm first(platform);
  DialogForm second(platform);
  Lines order;
  first.Show();
  second.Show();
  desktop->Later(20, [&] { order.push_back("first"), first.Unload(); });
  desktop->Later(60, [&] { order.push_back("hide"), second.Hide(); });
  desktop->Later(100, [&] { order.push_back("second"), second.Unload(); });
  platform.forms.RunUntilLastFormIsGone();
  EXPECT_EQ(order, (Lines{"first", "hide", "second"}));
}

TEST_F(FormLife, HasItsPlaceOnTheScreenWhileLoaded) {
  DeskForm form(platform);
  EXPECT_EQ(form.OuterBounds(), Rect{});
  Show(form);
  form.MoveTo({3000, 1500});
  Settle();
  const Rect outer = form.OuterBounds();
  EXPECT_NEAR(outer.left, 3000, 15);
  EXPECT_NEAR(outer.top, 1500, 15);
  EXPECT_GT(outer.width, 6000);
  EXPECT_LT(outer.width, 6000 + 450);
  EXPECT_GT(outer.height, 4800 + 450) << "title bar and menu come on top of the client area";
  EXPECT_LT(outer.height, 4800 + 1500);
  const MonitorList monitors = platform.forms.Monitors();
  EXPECT_GT(ScreenSize(monitors).width, 6000);
  EXPECT_EQ((Point{monitors.front().area.left, monitors.front().area.top}), Point{});
  form.Unload();
  EXPECT_EQ(form.OuterBounds(), Rect{});
}

TEST_F(FormLife, ComesUpOverTheActiveFormAndAlwaysInSight) {
  DeskForm desk(platform);
  Form dialog(platform.forms, {.name = L"frmOver", .clientSize = {1500, 1200}, .isCentred = true});
  Show(desk);
  desk.MoveTo({3000, 1500});
  Settle();
  Show(dialog);
  const Rect owner = desk.OuterBounds(), outer = dialog.OuterBounds();
  // A window manager may shift a new window by the width of its own frame.
  EXPECT_NEAR(outer.left + outer.width / 2, owner.left + owner.width / 2, 150);
  EXPECT_NEAR(outer.top + outer.height / 2, owner.top + owner.height / 2, 450);

  DialogForm lost(platform);
  lost.Load();
  lost.MoveTo({-90000, 3000});
  Show(lost);
  EXPECT_GE(lost.OuterBounds().left, -30);
}

}  // namespace

}  // namespace troth
