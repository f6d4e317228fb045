// The shapes of the main window: where each puts the controls, its sizes, and the way back.
#include "shell/Layouts.h"

#include <algorithm>

#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class LayoutsTest : public RunTest {
 protected:
  static constexpr Size kScreen{1024 * 15, 768 * 15};
  // What the headless desktop draws around the client area, menu bar included.
  static constexpr Size kFrame{90, 435 + 285};

  Size Outer() { return {Main().OuterBounds().width, Main().OuterBounds().height}; }
  Point Place() { return {Main().OuterBounds().left, Main().OuterBounds().top}; }
  Lines ShownControls() {
    Lines names;
    for (const Control* control : Main().Controls())
      if (control->IsShown()) names.push_back(Readable(control->Name()));
    return names;
  }
  Lines ShownMenus() {
    Lines names;
    for (const MenuItem* menu : Main().Menus())
      if (menu->Visible()) names.push_back(Readable(menu->Name()));
    return names;
  }
  std::vector<Rect> Places() {
    std::vector<Rect> places;
    for (const Control* control : Main().Controls()) places.push_back(control->Bounds());
    return places;
  }

  static constexpr MouseEvent kLeft{.button = MouseButton::Left};
};

TEST_F(LayoutsTest, TheListStandsBesideOrBelowTheOtherControls) {
  const struct {
    const wchar_t* vertical;
    Rect label, list;
    Size client;
  } cases[] = {{L"0", {2995, 120, 1335, 255}, {2995, 375, 5295, 2760}, {8290 + 105, 3135 + 105}},
               {L"1", {120, 3163, 1335, 255}, {120, 3418, 2775, 4170}, {2895 + 105, 7588 + 105}}};
  for (const auto& each : cases) {
    Store(L"Vertical Layout", each.vertical);
    RunMain([&] {
      EXPECT_EQ(Main().lblWedding.Bounds(), each.label);
      EXPECT_EQ(Main().lstWedding.Bounds(), each.list);
      EXPECT_EQ(Outer(), (Size{each.client.width + kFrame.width, each.client.height + kFrame.height}));
    });
    EXPECT_EQ(Stored(L"Vertical Layout"), each.vertical);
  }
}

TEST_F(LayoutsTest, SwitchingAnyNumberOfTimesGivesTheSizeBack) {
  RunMain([&] {
    const Size horizontal = Outer();
    user.Choose(Main().MOptionsVertical);
    EXPECT_TRUE(Main().MOptionsVertical.Checked());
    const Size vertical = Outer();
    EXPECT_NE(vertical, horizontal);
    for (int round = 0; round < 3; ++round) {
      user.Choose(Main().MOptionsVertical);
      ASSERT_EQ(Outer(), horizontal) << round;
      user.Choose(Main().MOptionsVertical);
      ASSERT_EQ(Outer(), vertical) << round;
    }
  });
  EXPECT_EQ(Stored(L"Vertical Layout"), L"1");
}

TEST_F(LayoutsTest, AWindowThatGrowsIsPushedBackOntoTheScreen) {
  RunMain([&] {
    const Size horizontal = Outer();
    Main().MoveTo({300, kScreen.height - horizontal.height});
    user.Choose(Main().MOptionsVertical);
    EXPECT_EQ(Place(), (Point{300, kScreen.height - Outer().height}));
    Main().MoveTo({kScreen.width - Outer().width, 150});
    user.Choose(Main().MOptionsVertical);
    EXPECT_EQ(Place(), (Point{kScreen.width - horizontal.width, 150}));
    Main().MoveTo({0, 0});
    user.Choose(Main().MOptionsVertical);
    EXPECT_EQ(Place(), (Point{0, 0}));
  });
}

TEST_F(LayoutsTest, TheTinyWindowHoldsTheControlsOfSpeechAlone) {
  RunMain([&] {
    user.Choose(Main().MOptionsTiny);
    EXPECT_EQ(Outer(), (Size{3015, 1140}));
    EXPECT_EQ(ShownControls(), (Lines{"txtNext", "cmdSpeak", "chkYell", "lblPrefix", "txtPrefix"}));
    EXPECT_EQ(ShownMenus(), Lines{});
    EXPECT_EQ(Main().cmdSpeak.Bounds(), (Rect{120, 120, 735, 495}));
    EXPECT_EQ(Main().chkYell.Bounds(), (Rect{960, 120, 1335, 255}));
    EXPECT_EQ(Main().lblPrefix.Bounds(), (Rect{960, 375, 495, 255}));
    EXPECT_EQ(Main().txtPrefix.Bounds(), (Rect{1440, 375, 1455, 285}));
    EXPECT_EQ(Main().txtNext.Bounds(), (Rect{120, 735, 2775, 285}));
    EXPECT_EQ(
        Main().StyleBits() & (kStyleTitleBar | kStyleControlBox | kStyleMinimiseBox | kStyleMaximiseBox), 0U);
    EXPECT_EQ(Main().Caption(), L"");
    EXPECT_EQ(Main().Options().border, BorderStyle::FixedDialog);
    Main().Unload();
  });
  EXPECT_EQ(Stored(L"Vertical Layout"), L"0");
}

TEST_F(LayoutsTest, LeavingTheTinyWindowGivesBackWhatWasThere) {
  for (const wchar_t* vertical : {L"0", L"1"}) {
    Store(L"Vertical Layout", vertical);
    RunMain([&] {
      user.Choose(Main().MOptionsTranslate);
      const Rect outer = Main().OuterBounds();
      // The prefix stands right below the tick box afterwards, a pixel lower than at the start.
      Main().lblPrefix.SetBounds({960, 2775, 495, 255});
      Main().txtPrefix.SetBounds({1440, 2775, 1455, 285});
      const std::vector<Rect> places = Places();
      const Lines controls = ShownControls();
      const Lines menus = ShownMenus();
      for (int round = 0; round < 3; ++round) {
        user.Choose(Main().MOptionsTiny);
        user.DoubleClick(Main());
        EXPECT_EQ(Main().OuterBounds(), outer);
        EXPECT_EQ(Places(), places);
        EXPECT_EQ(ShownControls(), controls);
        EXPECT_EQ(ShownMenus(), menus);
        EXPECT_EQ(Main().Caption(), L"Trothline");
        EXPECT_EQ(
            Main().StyleBits() & (kStyleTitleBar | kStyleControlBox | kStyleMinimiseBox | kStyleMaximiseBox),
            kStyleTitleBar | kStyleControlBox | kStyleMinimiseBox);
        EXPECT_FALSE(Main().MViewAddressBook.Visible());
        EXPECT_FALSE(Main().MOptionsAutoPatch.Visible());
      }
    });
  }
}

TEST_F(LayoutsTest, TheMouseWorksOnTheGroundOfTheTinyWindowOnly) {
  RunMain([&] {
    HeadlessForm& peer = *desktop.forms.Find(Main());
    Main().cmdSpeak.SetEnabled(true);
    const MouseEvent right{.button = MouseButton::Right};
    Control* const controls[] = {&Main().chkYell, &Main().cmdSpeak, &Main().lblPrefix, &Main().txtNext,
                                 &Main().txtPrefix};
    const auto rightEverywhere = [&] {
      user.MouseDown(Main(), right);
      for (Control* control : controls) user.MouseDown(*control, right);
    };
    const Rect outer = Main().OuterBounds();
    rightEverywhere();
    user.MouseMove(Main(), kLeft);
    user.DoubleClick(Main());
    EXPECT_TRUE(desktop.forms.Popups().empty());
    EXPECT_EQ(peer.Drags(), 0);
    EXPECT_EQ(Main().OuterBounds(), outer);

    user.Choose(Main().MOptionsTiny);
    rightEverywhere();
    EXPECT_EQ(desktop.forms.Popups(), std::vector<std::wstring>(6, L"MResize"));
    user.MouseDown(Main(), kLeft);
    user.MouseMove(Main(), {});
    EXPECT_EQ(peer.Drags(), 0) << "no button held";
    user.MouseMove(Main(), kLeft);
    EXPECT_EQ(peer.Drags(), 1);
    desktop.forms.WhenPopup([](MenuItem& menu) { menu.Children()[0]->UserChose(); });
    user.RightClick(Main().cmdSpeak);
    EXPECT_EQ(Main().OuterBounds(), outer);
  });
}

}  // namespace

}  // namespace troth
