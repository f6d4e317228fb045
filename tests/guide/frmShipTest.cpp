// The hidden game: how it opens, draws and ends, and that the program goes on meanwhile.
#include "guide/frmShip.h"

#include "platform/forms/KeyCodes.h"
#include "platform/headless/HeadlessCanvas.h"
#include "tests/shell/RunRig.h"

namespace troth {

namespace {

class frmShipTest : public RunTest {
 protected:
  frmShip& Ship() { return *program->Opened<frmShip>(); }
  std::vector<CanvasStroke> TakeFrame() { return HeadlessCanvas::Of(Ship().Field).TakeStrokes(); }

  void Open() {
    Main().txtNext.SetText(L"mossy cliff!");
    user.Choose(Main().MFileAbout);
  }

  // Opens the game and plays until `ms` have passed; then the window is closed. `play` comes after `afterMs`.
  void Play(int ms, int afterMs, const std::function<void()>& play) {
    RunMain([&] {
      Open();
      desktop.time.After(afterMs, play);
      desktop.time.After(ms, [&] { user.CloseWindow(Ship()); });
      desktop.time.Advance(20);
      EXPECT_EQ(program->Opened<frmShip>(), nullptr);
    });
  }
};

TEST_F(frmShipTest, DrawsAFrameEach25Ms) {
  std::vector<CanvasStroke> strokes;
  Play(20 + 10 * 25 + 5, 20 + 10 * 25 + 1, [&] { strokes = TakeFrame(); });
  const auto count = [&](CanvasAct act) {
    return std::count_if(strokes.begin(), strokes.end(),
                         [act](const CanvasStroke& stroke) { return stroke.act == act; });
  };
  EXPECT_EQ(count(CanvasAct::Clear), 10);
  EXPECT_EQ(count(CanvasAct::Line), 30);
  EXPECT_EQ(count(CanvasAct::Disc), 400);
  EXPECT_EQ(count(CanvasAct::Repaint), 10);
}

TEST_F(frmShipTest, TheTailIsWhiteAndTheSidesAreRed) {
  std::vector<CanvasStroke> strokes;
  Play(60, 50, [&] { strokes = TakeFrame(); });
  ASSERT_GE(strokes.size(), 5U);
  EXPECT_EQ(strokes[0].act, CanvasAct::Clear);
  EXPECT_EQ(strokes[0].color, 0U);
  using Points = std::vector<CanvasPoint>;
  const CanvasPoint nose{206, 180}, right{215, 195}, left{198, 195};
  EXPECT_EQ(strokes[1].points, (Points{nose, right}));
  EXPECT_EQ(strokes[1].color, 255U);
  EXPECT_EQ(strokes[2].points, (Points{right, left}));
  EXPECT_EQ(strokes[2].color, 0xFFFFFFU);
  EXPECT_EQ(strokes[3].points, (Points{left, nose}));
  EXPECT_EQ(strokes[3].color, 255U);
  EXPECT_EQ(strokes[4].act, CanvasAct::Disc);
  EXPECT_EQ(strokes[4].radius, 1);
  EXPECT_EQ(strokes[4].color, 0xFFFFFFU);
}

TEST_F(frmShipTest, TheArrowsFlyTheShip) {
  std::vector<CanvasStroke> still, flown;
  Play(400, 50, [&] {
    still = TakeFrame();
    user.Press(kLeftKey);
    user.Press(kUpKey);
    desktop.time.After(60, [&] {
      user.Release(kLeftKey);
      TakeFrame();
    });
    desktop.time.After(300, [&] { flown = TakeFrame(); });
  });
  ASSERT_GT(flown.size(), 100U);
  const std::size_t last = flown.size() - 45;
  EXPECT_EQ(flown[1].points, flown[last + 1].points) << "released, it turns no more";
  EXPECT_NE(flown[1].points, still[1].points);
  EXPECT_NE(flown[4].points, flown[last + 4].points) << "the stars move";
}

TEST_F(frmShipTest, TheProgramStaysLiveAndTakesTheGameAlong) {
  RunMain([&] {
    Open();
    EXPECT_EQ(Windows().front(), "frmShip");
    desktop.time.After(100, [&] {
      user.Click(Main().txtNext);
      user.Type(L"x");
      EXPECT_EQ(Main().txtNext.Text(), L"mossy cliff!x");
      user.Choose(Main().MFileQuit);
    });
    desktop.time.Advance(20);
    EXPECT_EQ(program->Opened<frmShip>(), nullptr);
  });
}

}  // namespace

}  // namespace troth
