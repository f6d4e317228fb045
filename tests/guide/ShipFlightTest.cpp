#include "guide/ShipFlight.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "platform/forms/KeyCodes.h"

namespace troth {
namespace {

constexpr float kFifteenDegrees = 0.2618F;
constexpr float kNear = 1e-4F;

ShipFlight Flight() { return ShipFlight(413, 380); }

TEST(ShipFlight, StarsAreScatteredOverTheFieldAtFourDepths) {
  ShipFlight flight = Flight();
  std::mt19937 random(7);
  flight.ScatterStars(random);
  const struct {
    std::size_t star;
    float depth;
  } cases[] = {{0, 1.F / 3}, {12, 1.F / 3}, {13, 2.F / 3}, {25, 2.F / 3}, {26, 1}, {38, 1}, {39, 4.F / 3}};
  for (const auto& each : cases) EXPECT_FLOAT_EQ(flight.Stars[each.star].z, each.depth) << each.star;
  float right = 0;
  float bottom = 0;
  for (const Star& star : flight.Stars) {
    EXPECT_GE(star.x, 0);
    EXPECT_LT(star.x, 413);
    EXPECT_GE(star.y, 0);
    EXPECT_LT(star.y, 380);
    right = std::max(right, star.x);
    bottom = std::max(bottom, star.y);
  }
  EXPECT_GT(right, 206);
  EXPECT_GT(bottom, 190);
}

TEST(ShipFlight, TheFirstOfTwoOppositeKeysTurnsTheShip) {
  const struct {
    int first, second;
    float turn;
  } cases[] = {
      {kLeftKey, kRightKey, -kFifteenDegrees}, {kRightKey, kLeftKey, kFifteenDegrees}, {kUpKey, 32, 0}};
  for (const auto& each : cases) {
    ShipFlight flight = Flight();
    flight.KeyDown(each.first);
    flight.KeyDown(each.second);
    flight.MoveShip();
    EXPECT_NEAR(flight.Heading, each.turn, kNear) << each.first;
    flight.KeyUp(each.first);
    flight.MoveShip();
    EXPECT_NEAR(flight.Heading, each.turn, kNear) << "the second was not heard";
  }
}

TEST(ShipFlight, ThrustAlongTheMotionAddsATenthAFrameAndNothingTakesItAway) {
  for (const float direction : {0.F, 0.7F, -1.2F, 2.5F, 4.F}) {
    ShipFlight flight = Flight();
    flight.Heading = flight.MoveDirection = direction;
    flight.KeyDown(kUpKey);
    for (int frame = 1; frame <= 20; ++frame) {
      flight.MoveShip();
      EXPECT_NEAR(flight.MoveSpeed, 0.1F * static_cast<float>(frame), kNear) << direction;
      EXPECT_NEAR(std::sin(flight.MoveDirection), std::sin(direction), kNear);
      EXPECT_NEAR(std::cos(flight.MoveDirection), std::cos(direction), kNear);
    }
    flight.KeyUp(kUpKey);
    for (int frame = 0; frame < 100; ++frame) flight.MoveShip();
    EXPECT_NEAR(flight.MoveSpeed, 2, kNear);
  }
}

TEST(ShipFlight, ThrustIsAddedToTheMotionAsAVector) {
  constexpr float kRightAngle = 1.5707963F;
  ShipFlight flight = Flight();
  flight.MoveSpeed = 0.1F;
  flight.Heading = kRightAngle;
  flight.KeyDown(kUpKey);
  flight.MoveShip();
  EXPECT_NEAR(flight.MoveSpeed, 0.1F * std::sqrt(2.F), kNear);
  EXPECT_NEAR(flight.MoveDirection, kRightAngle / 2, kNear);

  flight.MoveDirection = 0;
  flight.MoveSpeed = 0.05F;
  flight.Heading = 3.14159F;
  flight.MoveShip();
  EXPECT_NEAR(flight.MoveSpeed, 0.05F, kNear) << "it turned round";
  EXPECT_NEAR(flight.MoveDirection, 3.14159F, kNear);
}

TEST(ShipFlight, StarsMoveAgainstTheShipByTheirDepthAndComeBackAtTheOtherEdge) {
  const float rightward = 1.5707963F;
  const struct {
    float direction;
    Star before;
    float x, y;
  } cases[] = {
      {0, {100, 50, 1}, 100, 60},
      {0, {100, 50, 1.F / 3}, 100, 50 + 10.F / 3},
      {0, {100, 375, 1}, 100, 0},
      {0, {100, 370, 1}, 100, 380},
      {rightward, {100, 50, 4.F / 3}, 100 - 40.F / 3, 50},
      {rightward, {5, 50, 1}, 413, 50},
      {-rightward, {410, 50, 1}, 0, 50},
      {3.14159F, {100, 5, 1}, 100, 380},
  };
  for (const auto& each : cases) {
    ShipFlight flight = Flight();
    flight.MoveSpeed = 10;
    flight.MoveDirection = each.direction;
    flight.Stars[0] = each.before;
    flight.MoveShip();
    EXPECT_NEAR(flight.Stars[0].x, each.x, 0.01F) << &each - cases;
    EXPECT_NEAR(flight.Stars[0].y, each.y, 0.01F) << &each - cases;
  }
}

TEST(ShipFlight, TheCornersStandTenUnitsAroundTheMiddle) {
  ShipFlight flight(413, 380);
  using Corners = std::array<CanvasPoint, 3>;
  EXPECT_EQ(flight.Corners(), (Corners{{{206, 180}, {215, 195}, {198, 195}}}));
  flight.Heading = 1.5707963F;
  EXPECT_EQ(flight.Corners(), (Corners{{{216, 190}, {202, 199}, {201, 181}}}));
}

}  // namespace
}  // namespace troth
