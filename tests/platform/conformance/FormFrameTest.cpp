// The mouse on forms and controls, popup menus and shortcuts, and a frame that changes while the form is
// shown.
#include <utility>
#include <vector>

#include "platform/forms/Frame.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/PictureBox.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

class ShapesForm final : public TestForm {
 public:
  explicit ShapesForm(Platform& platform, std::wstring formName = L"frmShapes")
      : TestForm(platform, std::move(formName)) {
    MConfigureFirst.OnClick = Writer("first");
    MConfigureSecond.OnClick = Writer("second");
    MFileExit.OnClick = Writer("exit");
    for (Control* control : Controls()) {
      const std::string name = Narrow(control->Name());
      control->OnMouseDown = [this, name](const MouseEvent& event) {
        Write(name + " down " + std::to_string(static_cast<int>(event.button)));
        if (event.button == MouseButton::Right && popsUp) PopupMenu(MConfigure);
      };
      control->OnMouseUp = [this, name](const MouseEvent& event) {
        Write(name + " up " + std::to_string(static_cast<int>(event.button)));
      };
    }
    OnMouseDown = [this](const MouseEvent&) { Write("form down"); };
    OnClick = Writer("form click");
    OnDoubleClick = Writer("form double");
    lblText.OnClick = Writer("label click");
    cmdPress.OnClick = Writer("press");
    cmdOnce.OnClick = Writer("once");
  }

  bool popsUp = false;
  Label lblText{*this, {.name = L"lblText", .caption = L"Text", .bounds = {120, 120, 900, 255}}};
  TextBox txtText{*this, {.name = L"txtText", .bounds = {1200, 120, 1800, 330}}};
  CommandButton cmdPress{*this, {.name = L"cmdPress", .caption = L"Press", .bounds = {120, 600, 1200, 375}}};
  CommandButton cmdOnce{
      *this,
      {.name = L"cmdOnce", .caption = L"Once", .bounds = {1440, 600, 1200, 375}, .ignoresDoubleClick = true}};
  Frame fraChoice{*this, {.name = L"fraChoice", .caption = L"Choice", .bounds = {120, 1200, 2700, 1500}}};
  OptionButton optFirst{
      fraChoice,
      {.name = L"optFirst", .caption = L"F&irst", .bounds = {120, 300, 1800, 300}, .isSelected = true}};
  OptionButton optSecond{fraChoice,
                         {.name = L"optSecond", .caption = L"Secon&d", .bounds = {120, 660, 1800, 300}}};
  OptionButton optThird{
      fraChoice,
      {.name = L"optThird", .caption = L"Third", .bounds = {120, 1020, 1800, 300}, .enabled = false}};
  CommandButton cmdLast{*this, {.name = L"cmdLast", .caption = L"Last", .bounds = {120, 3000, 1200, 375}}};

  MenuItem MFile{*this, {.name = L"MFile", .caption = L"&File"}};
  MenuItem MFileExit{MFile, {.name = L"MFileExit", .caption = L"E&xit", .shortcut = {L'X', kControlDown}}};
  MenuItem MConfigure{*this, {.name = L"MConfigure", .caption = L"&Configure", .visible = false}};
  MenuItem MConfigureFirst{MConfigure, {.name = L"MConfigureFirst", .caption = L"One"}};
  MenuItem MConfigureSecond{MConfigure, {.name = L"MConfigureSecond", .caption = L"Two"}};
};

class Shapes : public ConformanceTest {
 protected:
  void SetUp() override {
    ConformanceTest::SetUp();
    Show(form);
    form.TakeHeard();
  }
  // After `act`, what the form has heard.
  Lines After(const std::function<void()>& act) {
    act();
    return form.TakeHeard();
  }

  ShapesForm form{platform};
};

TEST_F(Shapes, MousePressesPrecedeWhatTheControlDoes) {
  EXPECT_EQ(After([&] { desktop->Click(form.cmdPress); }),
            (Lines{"cmdPress down 1", "cmdPress up 1", "press"}));
  EXPECT_EQ(After([&] { desktop->Click(form.lblText); }),
            (Lines{"lblText down 1", "lblText up 1", "label click"}));
  EXPECT_EQ(After([&] { desktop->RightClick(form.cmdPress); }), (Lines{"cmdPress down 2", "cmdPress up 2"}));
  EXPECT_EQ(After([&] { desktop->Click(form); }), (Lines{"form down", "form click"}));
  EXPECT_EQ(After([&] { desktop->DoubleClick(form); }), (Lines{"form down", "form click", "form double"}));
}

TEST_F(Shapes, PopupMenuOfAMenuHiddenFromTheBarCarriesOutWhatIsChosen) {
  form.popsUp = true;
  const struct {
    int item;
    Lines heard;
  } rows[] = {{1, {"txtText down 2", "second"}}, {0, {"txtText down 2", "first"}}, {-1, {"txtText down 2"}}};
  for (const auto& row : rows) {
    desktop->NextPopup(row.item);
    Lines heard = After([&] { desktop->RightClick(form.txtText); });
    // Whether the release still reaches the control is the menu's affair.
    std::erase(heard, "txtText up 2");
    EXPECT_EQ(heard, row.heard) << row.item;
  }
  EXPECT_EQ(desktop->ShownMenu(form.MConfigure).visible, false);
}

TEST_F(Shapes, ShortcutChoosesItsItemWhereverTheKeyboardIs) {
  desktop->Click(form.txtText);
  form.TakeHeard();
  EXPECT_EQ(After([&] { desktop->Press('X', kControlDown); }), Lines{"exit"});
  form.MFileExit.SetEnabled(false);
  EXPECT_EQ(After([&] { desktop->Press('X', kControlDown); }), Lines{});
}

TEST_F(Shapes, OptionsOfAFrameExcludeEachOther) {
  const auto selected = [&] {
    return std::vector<bool>{desktop->ShownTick(form.optFirst), desktop->ShownTick(form.optSecond)};
  };
  int clicks = 0;
  form.optFirst.OnClick = [&] { ++clicks; };
  form.optSecond.OnClick = [&] { clicks += 10; };
  EXPECT_EQ(selected(), (std::vector<bool>{true, false}));
  desktop->Click(form.optSecond);
  EXPECT_EQ(selected(), (std::vector<bool>{false, true}));
  EXPECT_TRUE(desktop->HasKeyboard(form.optSecond));
  desktop->Press(kUp);
  EXPECT_EQ(selected(), (std::vector<bool>{true, false}));
  EXPECT_TRUE(desktop->HasKeyboard(form.optFirst));
  // The disabled third one is passed over, and Tab leaves the group.
  desktop->Press(kUp);
  EXPECT_EQ(selected(), (std::vector<bool>{false, true}));
  desktop->Press(kTab);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmdLast));
  EXPECT_EQ(clicks, 21);
  form.optFirst.Select();
  EXPECT_EQ(selected(), (std::vector<bool>{true, false}));
  EXPECT_EQ(clicks, 22);
}

TEST_F(Shapes, FrameDisablesAndMovesWhatStandsInIt) {
  form.fraChoice.SetEnabled(false);
  EXPECT_FALSE(desktop->ShownEnabled(form.optFirst));
  EXPECT_ANY_THROW(desktop->Click(form.optSecond));
  form.fraChoice.SetEnabled(true);
  EXPECT_TRUE(desktop->ShownEnabled(form.optFirst));
  EXPECT_FALSE(desktop->ShownEnabled(form.optThird));
  form.fraChoice.SetBounds({3000, 1200, 2700, 1500});
  desktop->Click(form.optSecond);
  EXPECT_TRUE(desktop->ShownTick(form.optSecond));
}

TEST_F(Shapes, FrameBitsChangeWithinTheSameOuterRectangle) {
  form.MoveTo({1500, 1200});
  const Rect before = form.OuterBounds();
  const std::uint32_t bits = form.StyleBits();
  EXPECT_EQ(bits & kStyleTitleBar, kStyleTitleBar);
  const Size client = form.ClientSize();
  ASSERT_TRUE(form.RegisterHotkey(7, kHotkeyControl, 0x78));
  int hotkeys = 0;
  form.OnHotkey = [&](int, int) { ++hotkeys; };

  form.SetStyleBits(bits & ~(kStyleTitleBar | kStyleControlBox | kStyleMinimiseBox));
  EXPECT_EQ(form.OuterBounds(), before);
  EXPECT_EQ(form.StyleBits() & kStyleTitleBar, 0u);
  EXPECT_GT(form.ClientSize().height, client.height);
  desktop->PressHotkey(0x78, kHotkeyControl);
  EXPECT_EQ(hotkeys, 1);

  form.SetOuterSize({3015, 1140});
  EXPECT_EQ(form.OuterBounds(), (Rect{1500, 1200, 3015, 1140}));
  form.SetStyleBits(bits);
  form.SetOuterSize({before.width, before.height});
  EXPECT_EQ(form.OuterBounds(), before);
  EXPECT_EQ(form.ClientSize(), client);
  EXPECT_EQ(form.StyleBits(), bits);
}

TEST_F(Shapes, LeavingTheTopmostFormsTakesNoOwnedFormAlong) {
  ShapesForm bar(platform, L"frmBar");
  form.SetStacking(Stacking::TopMost);
  bar.Show(&form);
  bar.SetStacking(Stacking::TopMost);
  Settle();
  form.SetStacking(Stacking::NotTopMost);
  ShapesForm other(platform, L"frmOther");
  Show(other);
  EXPECT_TRUE(desktop->IsAbove(bar, other));
  EXPECT_TRUE(desktop->IsAbove(other, form));
  // Off and on again: it is in front as before.
  form.SetStacking(Stacking::TopMost);
  other.Hide();
  Show(other);
  EXPECT_TRUE(desktop->IsAbove(form, other));
}

}  // namespace

}  // namespace troth
