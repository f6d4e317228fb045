#include "guide/frmShip.h"

#include "core/Program.h"
#include "platform/services/TimeService.h"

namespace troth {

namespace {

constexpr std::uint32_t kFrameMs = 25;
constexpr Color kSpace = 0;
constexpr Color kRed = 255;
constexpr Color kWhite = 0xFFFFFF;

}  // namespace

frmShip::frmShip(Program& program)
    : Form(program.platform.forms, {.name = L"frmShip",
                                    .caption = L"Use the arrow keys to move the ship",
                                    .clientSize = {kField.width * 15, kField.height * 15},
                                    .isCentred = true}),
      program_(program) {
  OnKeyDown = [this](KeyPress& press) { flight_.KeyDown(press.keyCode); };
  OnKeyUp = [this](KeyPress& press) { flight_.KeyUp(press.keyCode); };
  tmrStart.OnTimer = [this] { tmrStart_Timer(); };
}

void frmShip::tmrStart_Timer() {
  TimeService& time = program_.platform.time;
  tmrStart.SetEnabled(false);
  LastFrame = time.TickCount();
  GameRunning = true;
  program_.Random.seed(LastFrame);
  flight_.ScatterStars(program_.Random);
  RunGame();
}

// Takes all the processor that it gets, as its frames are counted and not timed.
void frmShip::RunGame() {
  TimeService& time = program_.platform.time;
  while (GameRunning) {
    const std::uint32_t now = time.TickCount();
    if (now - LastFrame >= kFrameMs) {
      LastFrame = now;
      flight_.MoveShip();
      Field.Clear(kSpace);
      DrawShip();
      DrawStars();
      Field.Repaint();
    }
    time.Pump();
  }
}

// The white side is the tail.
void frmShip::DrawShip() {
  const auto [nose, right, left] = flight_.Corners();
  Field.Line(nose, right, kRed);
  Field.Line(right, left, kWhite);
  Field.Line(left, nose, kRed);
}

void frmShip::DrawStars() {
  for (const Star& star : flight_.Stars) Field.FillDisc({star.x, star.y}, 1, kWhite);
}

}  // namespace troth
