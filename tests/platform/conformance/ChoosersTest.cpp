// Drop-down lists, tabs, fields to choose by, and the frames that they stand in.
#include "platform/forms/DropDownList.h"
#include "platform/forms/Frame.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/TabStrip.h"
#include "tests/platform/conformance/TestForms.h"

namespace troth {

namespace {

constexpr int kLeft = 37;
constexpr int kRight = 39;

// Tab stops in order: tabs, cmbKey, chkInside, picColor, cmdOk, cmdCancel.
class ChoosersForm final : public TestForm {
 public:
  explicit ChoosersForm(Platform& platform) : TestForm(platform, L"frmChoosers") {}

  TabStrip tabs{*this,
                {.name = L"tabs",
                 .bounds = {120, 120, 5760, 2400},
                 .tabs = {{L"First", L"one"}, {L"Second", L"two"}, {L"Third", L"three"}}}};
  Frame frmGroup{*this, {.name = L"frmGroup", .caption = L"Gr&oup", .bounds = {360, 600, 5280, 1500}}};
  DropDownList cmbKey{frmGroup, {.name = L"cmbKey", .bounds = {240, 480, 1800, 315}}};
  CheckBox chkInside{frmGroup,
                     {.name = L"chkInside", .caption = L"&Inside", .bounds = {2400, 480, 1800, 315}}};
  PictureBox picColor{
      *this, {.name = L"picColor", .bounds = {120, 2760, 600, 400}, .isForChoosing = true, .backColor = 255}};
  PictureBox imgIcon{*this,
                     {.name = L"imgIcon", .bounds = {960, 2760, 480, 480}, .picture = Picture::ProgramIcon}};
  CommandButton cmdOk{
      *this, {.name = L"cmdOk", .caption = L"OK", .bounds = {120, 3600, 1200, 375}, .isDefault = true}};
  CommandButton cmdCancel{
      *this,
      {.name = L"cmdCancel", .caption = L"Cancel", .bounds = {1440, 3600, 1200, 375}, .isCancel = true}};
};

class Choosers : public ConformanceTest {
 protected:
  ChoosersForm form{platform};

  void SetUp() override {
    form.cmbKey.SetEntries({L"F1", L"F2", L"F3", L"F4"});
    form.cmbKey.OnClick = [this] { form.Write("key " + std::to_string(form.cmbKey.Index())); };
    form.tabs.OnClick = [this] { form.Write("tab " + std::to_string(form.tabs.Index())); };
    form.chkInside.OnClick = form.Writer("inside");
    form.picColor.OnClick = form.Writer("colour");
    form.imgIcon.OnClick = form.Writer("icon");
    form.cmdOk.OnClick = form.Writer("ok");
    Show(form);
    form.TakeHeard();
  }

  // What is done, and what the chooser shows and tells afterwards.
  struct Step {
    std::function<void()> act;
    int index;
    Lines heard;
  };
  template <class Chooser>
  void Walk(const Chooser& chooser, const std::vector<Step>& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
      SCOPED_TRACE("step " + std::to_string(i));
      steps[i].act();
      EXPECT_EQ(chooser.Index(), steps[i].index);
      EXPECT_EQ(desktop->ShownIndex(chooser), steps[i].index);
      EXPECT_EQ(form.TakeHeard(), steps[i].heard);
    }
  }
  std::function<void()> Pressing(int key) {
    return [this, key] { desktop->Press(key); };
  }
};

TEST_F(Choosers, DropDownListTellsEachChangeByUserAndProgram) {
  DropDownList& list = form.cmbKey;
  Walk(list, {{[&] { list.SetIndex(2); }, 2, {"key 2"}},
              {[&] { list.SetIndex(2); }, 2, {}},
              {[&] { desktop->Select(list, 0); }, 0, {"key 0"}},
              {[&] { desktop->Select(list, 0); }, 0, {}},
              {Pressing(kDown), 1, {"key 1"}},
              {Pressing(kEnd), 3, {"key 3"}},
              {Pressing(kHome), 0, {"key 0"}},
              {[&] { list.SetIndex(4); }, -1, {"key -1"}},
              {Pressing(kDown), 0, {"key 0"}},
              {[&] { list.SetEntries({}); }, -1, {"key -1"}},
              {[&] {
                 list.SetEntries({L"& two", L"x"});
               },
               -1,
               {}},
              {[&] { desktop->Select(list, 1); }, 1, {"key 1"}}});
  EXPECT_TRUE(desktop->HasKeyboard(list));
  EXPECT_EQ(desktop->ShownEntries(list), (std::vector<std::wstring>{L"& two", L"x"}));
  desktop->Press(kEnter);
  EXPECT_EQ(form.TakeHeard(), Lines{"ok"});
}

TEST_F(Choosers, TabsTellEachChangeByUserAndProgram) {
  TabStrip& tabs = form.tabs;
  Walk(tabs, {{[&] { tabs.SetIndex(0); }, 0, {}},
              {[&] { tabs.SetIndex(2); }, 2, {"tab 2"}},
              {[&] { tabs.SetIndex(3); }, 2, {}},
              {[&] { form.cmdOk.SetFocus(), desktop->Select(tabs, 1); }, 1, {"tab 1"}},
              {Pressing(kLeft), 0, {"tab 0"}},
              {[&] { desktop->Select(tabs, 0); }, 0, {}},
              {Pressing(kRight), 1, {"tab 1"}},
              {Pressing(kRight), 2, {"tab 2"}},
              {Pressing(kRight), 2, {}}});
  EXPECT_TRUE(desktop->HasKeyboard(tabs));
}

TEST_F(Choosers, FieldIsChosenByMouseSpaceAndEnterAndAPictureByMouseAlone) {
  const struct {
    std::function<void()> act;
    Lines heard;
  } steps[] = {{[&] { desktop->Click(form.picColor); }, {"colour"}},
               {Pressing(kSpace), {"colour"}},
               {Pressing(kEnter), {"colour"}},
               {[&] { desktop->Click(form.imgIcon); }, {"icon"}},
               {Pressing(kSpace), {"colour"}}};
  for (const auto& step : steps) {
    step.act();
    EXPECT_EQ(form.TakeHeard(), step.heard);
    EXPECT_TRUE(desktop->HasKeyboard(form.picColor));
  }
  form.picColor.SetEnabled(false);
  EXPECT_ANY_THROW(desktop->Click(form.picColor));
  EXPECT_EQ(form.TakeHeard(), Lines{});
}

TEST_F(Choosers, TabWalksThroughAFrameAndItsMnemonicLeadsIntoIt) {
  Control* const stops[] = {&form.tabs,     &form.cmbKey, &form.chkInside,
                            &form.picColor, &form.cmdOk,  &form.cmdCancel};
  for (Control* stop : stops) {
    EXPECT_TRUE(desktop->HasKeyboard(*stop)) << Narrow(stop->Name());
    desktop->Press(kTab);
  }
  desktop->Press('O', kAltDown);
  EXPECT_TRUE(desktop->HasKeyboard(form.cmbKey));
  desktop->Click(form.chkInside);
  desktop->Press('I', kAltDown);
  EXPECT_EQ(form.TakeHeard(), (Lines{"inside", "inside"}));
}

TEST_F(Choosers, HiddenFrameTakesItsControlsAlongAndLetsEachBackAsItWas) {
  form.cmbKey.SetFocus();
  form.WatchFocus();
  form.frmGroup.SetVisible(false);
  EXPECT_EQ(form.TakeHeard(), (Lines{"-cmbKey", "+picColor"}));
  for (const Control* control :
       std::initializer_list<const Control*>{&form.frmGroup, &form.cmbKey, &form.chkInside})
    EXPECT_FALSE(desktop->ShownVisible(*control)) << Narrow(control->Name());
  EXPECT_ANY_THROW(desktop->Click(form.chkInside));
  form.tabs.SetFocus();
  desktop->Press(kTab);
  EXPECT_TRUE(desktop->HasKeyboard(form.picColor));
  for (const int letter : {'O', 'I'}) desktop->Press(letter, kAltDown);
  EXPECT_TRUE(desktop->HasKeyboard(form.picColor));
  form.cmbKey.SetVisible(false);
  form.chkInside.SetVisible(true);
  EXPECT_FALSE(desktop->ShownVisible(form.chkInside)) << "its own wish is not enough";
  form.frmGroup.SetVisible(true);
  EXPECT_TRUE(desktop->ShownVisible(form.chkInside));
  EXPECT_FALSE(desktop->ShownVisible(form.cmbKey));
}

}  // namespace

}  // namespace troth
