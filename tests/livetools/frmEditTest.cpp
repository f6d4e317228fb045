// The edit window: what it sends and keeps, and where it stands.
#include "livetools/frmEdit.h"

#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

class frmEditTest : public SpeechTest {
 protected:
  static constexpr int kEnter = 13, kEscape = 27, kPageUp = 33, kPageDown = 34, kUp = 38, kDown = 40;

  frmEdit& Edit() { return *program.Opened<frmEdit>(); }
  bool IsOpen() { return program.Opened<frmEdit>() != nullptr; }
  void Open() {
    if (desktop.forms.Active() != desktop.forms.Find(*window)) user.Click(window->txtNext);
    user.Choose(window->MViewEdit);
  }
  void Say(std::wstring_view text) {
    user.Type(text);
    user.Press(kEnter);
  }
  std::string Text() { return Readable(Edit().txtEdit.Text()); }
  std::string After(int key, int shift = 0) {
    user.Press(key, shift);
    return Text();
  }
  Point Place() {
    const Rect outer = Edit().OuterBounds();
    return {outer.left, outer.top};
  }
};

TEST_F(frmEditTest, EnterSendsTheTextAsItStands) {
  Start({"row"});
  StartGame();
  Open();
  const struct {
    const wchar_t* text;
    bool autoterminate;
    Lines story;
    const char* left;
  } cases[] = {
      {L"Hi", false, {kRaise, "posts Hi<13>"}, ""},
      {L"Hi", true, {kRaise, "posts <13>", "sleep 300", "posts Hi<13>"}, ""},
      {L"/bow", false, {kRaise, "posts <13>", "sleep 300", "posts /bow<13>"}, ""},
      {L" /bow  \x00E9", false, {kRaise, "posts  /bow  <233><13>"}, ""},
      {L"", true, {}, ""},
      {L"   ", true, {}, "   "},
  };
  for (const auto& [text, autoterminate, story, left] : cases) {
    user.Click(window->txtNext);
    Check(window->MOptionsAuto, autoterminate);
    user.Click(Edit().txtEdit);
    TakeStory();
    Say(text);
    EXPECT_EQ(TakeStory(), story) << Readable(text);
    EXPECT_EQ(Text(), left);
  }
  EXPECT_EQ(Row(), 1);
  EXPECT_EQ(Next(), "row");
  EXPECT_EQ(program.EditBoxHistory.HistoryNext(), 5) << "four sentences";
}

TEST_F(frmEditTest, TheArrowsBrowseInARingThatOutlivesTheWindow) {
  Start({});
  Open();
  user.Type(L"x");
  EXPECT_EQ(After(kUp), "x");
  EXPECT_EQ(program.EditBoxHistory.HistoryPos(), -1);
  user.Press(kEnter);
  EXPECT_EQ(After(kDown), "") << "the ring has not come round";
  EXPECT_EQ(After(kUp), "x");
  EXPECT_FALSE(Edit().txtEdit.IsAllSelected());
  EXPECT_EQ(After(kUp), "x");
  for (const int shift : {kShiftDown, kControlDown, kAltDown}) {
    KeyPress press{.keyCode = kDown, .shift = shift};
    Edit().txtEdit.UserPressedKey(press);
    EXPECT_FALSE(press.handled);
  }
  TypeOver(Edit().txtEdit, L" y ");
  user.Press(kEnter);
  EXPECT_EQ(After(kUp), " y ");
  for (int press = 0; press < 2; ++press) user.Press(kEscape);
  ASSERT_FALSE(IsOpen());
  Open();
  EXPECT_EQ(After(kPageUp), " y ") << "browsing starts from the newest";
  EXPECT_EQ(After(kPageUp), "x");
  EXPECT_EQ(After(kPageDown), " y ");
  EXPECT_EQ(After(kDown), " y ") << "the gap";

  TypeOver(Edit().txtEdit, L"1");
  user.Press(kEnter);
  for (int number = 2; number <= 31; ++number) Say(std::to_wstring(number));
  EXPECT_EQ(After(kDown), "3") << "the oldest";
  EXPECT_EQ(After(kUp), "3");
  for (int number = 4; number <= 31; ++number) EXPECT_EQ(After(kDown), std::to_string(number));
  EXPECT_EQ(After(kDown), "31");
  for (int number = 30; number >= 3; --number) EXPECT_EQ(After(kUp), std::to_string(number));
}

TEST_F(frmEditTest, EscClearsAndThenClosesAndThePlaceIsKept) {
  Start({});
  Open();
  user.Type(L"so ");
  EXPECT_EQ(After(kEscape), "");
  EXPECT_EQ(user.Focused(), &Edit().txtEdit);
  user.Press(kTabKey);
  EXPECT_EQ(user.Focused(), &Edit().txtEdit) << "there is nothing else to be seen";
  user.Type(L"  ");
  Edit().MoveTo({300, 450});
  user.Press(kEscape);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(Stored(L"Edit Box", L"Y Position"), L"450");
  Store(L"Edit Box", L"Y Position", L"-1");
  Open();
  EXPECT_EQ(Text(), "");
  const Rect main = window->OuterBounds();
  EXPECT_EQ(Place(), (Point{300, main.top + main.height})) << "a place below 0 is none";
  EXPECT_EQ(desktop.forms.Find(Edit())->Owner(), desktop.forms.Find(*window));
  EXPECT_TRUE(desktop.forms.Find(Edit())->IsTopMost());
}

TEST_F(frmEditTest, FollowsTheLowerLeftCornerOfTheGameWhileItIsGlued) {
  Store(L"Edit Box", L"X Position", L"30");
  Store(L"Edit Box", L"Y Position", L"45");
  Start({});
  Open();
  EXPECT_EQ(Place(), (Point{30, 45}));
  StartGame();
  const struct {
    int left, bottom;
    bool isAlive, isSticky;
    int waitMs;
    Point place;
  } steps[] = {{10, 220, true, true, 99, {30, 45}},      {10, 220, true, true, 1, {150, 3300}},
               {10, 100, true, true, 100, {150, 1500}},  {-20, 100, true, true, 100, {-300, 1500}},
               {0, 100, true, false, 500, {-300, 1500}}, {0, 100, true, true, 100, {0, 1500}},
               {9, 90, false, true, 500, {0, 1500}}};
  game->place.top = 0;
  for (const auto& step : steps) {
    game->place.left = step.left;
    game->place.bottom = step.bottom;
    game->alive = step.isAlive;
    program.EditBoxSticky = step.isSticky;
    desktop.time.Advance(step.waitMs);
    EXPECT_EQ(Place(), step.place) << &step - steps;
  }
  game->alive = true;
  Edit().MoveTo({450, 600});
  Edit().Unload();
  Open();
  EXPECT_EQ(Place(), (Point{135, 1350})) << "at once, and not where it was kept";
  Edit().MoveTo({450, 600});
  desktop.time.Advance(500);
  EXPECT_EQ(Place(), (Point{450, 600})) << "stays where it is put until the game moves";
}

TEST_F(frmEditTest, StaysInSightOfAMaximisedGameAndWhereItIsWhenTheGameIsMinimised) {
  Start({});
  StartGame();
  game->minimised = true;
  Open();
  const Rect main = window->OuterBounds();
  EXPECT_EQ(Place(), (Point{main.left, main.top + main.height})) << "as without a game";
  game->minimised = false;
  game->place = {-8, -8, 1032, 776};
  desktop.time.Advance(100);
  const Rect outer = Edit().OuterBounds();
  EXPECT_EQ(Place(), (Point{0, 768 * 15 - outer.height}));
  game->minimised = true;
  desktop.time.Advance(100);
  EXPECT_EQ(Place(), (Point{0, 768 * 15 - outer.height}));
}

}  // namespace

}  // namespace troth
