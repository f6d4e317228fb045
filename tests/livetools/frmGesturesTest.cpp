// The gesture bar: what it sends, to whom, and what becomes of a file that is short.
#include "livetools/frmGestures.h"

#include "tests/speech/SpeechRig.h"

namespace troth {

namespace {

const std::wstring kFile = L"C:\\Games\\Trothline\\Gestures.ini";
const std::string kRaiseSecond = "raise Kestrel Moors Pale Light";

class frmGesturesTest : public SpeechTest {
 protected:
  void Open(const std::string& file) {
    files.Put(kFile, file);
    OpenAsItIs();
  }
  void OpenAsItIs() {
    Start({"row"});
    user.Click(window->txtNext);
    user.Choose(window->MViewGestureBar);
    TakeStory();
  }
  frmGestures& Bar() { return *program.Opened<frmGestures>(); }
  CommandButton& Button(std::size_t index) { return Bar().MacroButton[index]; }
  static std::string All() {
    std::string bytes;
    for (int i = 1; i <= 28; ++i) bytes += " gesture " + std::to_string(i) + " \r\n";
    return bytes + "one too many\r\n";
  }
};

TEST_F(frmGesturesTest, AClickSendsTheMarkAndTheNameToTheSecondClientOnly) {
  Open("bow\r\n\r\n");
  StartGame(kGameClass);
  user.Click(Button(0));
  EXPECT_EQ(TakeStory(), Lines{}) << "the first client has no gestures";
  StartGame(kSecondGameClass);
  const struct {
    std::size_t button;
    bool autoterminate;
    Lines story;
  } cases[] = {
      {0, true, {kRaiseSecond, "posts <13>", "sleep 100", "posts `bow<13>"}},
      {0, false, {kRaiseSecond, "posts `bow<13>"}},
      {1, false, {kRaiseSecond, "posts `<13>"}},
  };
  for (const auto& each : cases) {
    user.Click(window->txtNext);
    Check(window->MOptionsAuto, each.autoterminate);
    TakeStory();
    user.Click(Button(each.button));
    EXPECT_EQ(TakeStory(), each.story) << each.button;
  }
}

TEST_F(frmGesturesTest, StandsInThreeRowsOfTheFilesNames) {
  Open(All());
  const struct {
    std::size_t button;
    const wchar_t* name;
    Rect place;
  } cases[] = {{0, L"gesture 1", {0, 0, 1095, 375}},        {9, L"gesture 10", {9720, 0, 1095, 375}},
               {10, L"gesture 11", {0, 360, 1095, 375}},    {19, L"gesture 20", {9720, 360, 1095, 375}},
               {20, L"gesture 21", {1080, 720, 1095, 375}}, {27, L"gesture 28", {8640, 720, 1095, 375}}};
  for (const auto& each : cases) {
    EXPECT_EQ(Button(each.button).Caption(), each.name);
    EXPECT_EQ(Button(each.button).ToolTip(), each.name);
    EXPECT_EQ(Button(each.button).Bounds(), each.place) << each.button;
  }
  EXPECT_EQ(Bar().Options().clientSize, (Size{10815, 1095}));
}

TEST_F(frmGesturesTest, ButtonsWithoutALineAreDeadAndSayWhy) {
  Open("bow\r\ncurtsy");
  EXPECT_TRUE(Button(1).Enabled());
  EXPECT_FALSE(Button(2).Enabled());
  EXPECT_EQ(Button(2).Caption(), L"");
  EXPECT_EQ(Button(2).ToolTip(), L"There is no line for this button in " + kFile);
  EXPECT_EQ(TakeStory(), Lines{});
}

TEST_F(frmGesturesTest, KeepsItsPlaceAndWhetherTheUserClosedIt) {
  Open(All());
  EXPECT_EQ(Stored(L"Gesture Bar", L"Visible"), L"-1");
  Bar().MoveTo({300, 450});
  Bar().Unload();
  EXPECT_EQ(Stored(L"Gesture Bar", L"Visible"), L"-1");
  EXPECT_EQ(Stored(L"Gesture Bar", L"Y Position"), L"450");
  user.Click(window->txtNext);
  user.Choose(window->MViewGestureBar);
  EXPECT_EQ(Bar().OuterBounds().left, 300);
  user.CloseWindow(Bar());
  EXPECT_EQ(Stored(L"Gesture Bar", L"Visible"), L"0");
}

}  // namespace

}  // namespace troth
