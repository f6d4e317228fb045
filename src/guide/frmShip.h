// The hidden game: opened by a phrase in place of the about window, and documented nowhere. It has no goal,
// no score and no end. The rest of the program stays live while it runs.
#pragma once

#include <cstdint>

#include "guide/ShipFlight.h"
#include "platform/forms/Canvas.h"
#include "platform/forms/Form.h"
#include "platform/forms/Timer.h"

namespace troth {

class Program;

class frmShip final : public Form {
 public:
  explicit frmShip(Program& program);

  // One unit is a pixel at 100 %.
  Canvas Field{*this,
               {.name = L"Field",
                .bounds = {0, 0, kField.width * 15, kField.height * 15},
                .scale = {.right = kField.width, .bottom = kField.height}}};
  Timer tmrStart{*this, {.name = L"tmrStart", .intervalMs = 20, .enabled = true}};

 private:
  static constexpr Size kField{413, 380};

  void Form_Unload() override { GameRunning = false; }
  void tmrStart_Timer();
  void RunGame();
  void DrawShip();
  void DrawStars();

  Program& program_;
  ShipFlight flight_{kField.width, kField.height};
  bool GameRunning = false;
  std::uint32_t LastFrame = 0;
};

}  // namespace troth
