#include "guide/ShipFlight.h"

#include <cmath>

#include "platform/forms/KeyCodes.h"

namespace troth {

namespace {

constexpr float kHalfTurn = 3.14159F;
constexpr float kTurnAFrame = 47.12385F / 180;  // 15 degrees
constexpr float kThrustAFrame = 0.1F;
constexpr std::size_t kStarsOfADepth = 13;

}  // namespace

void ShipFlight::ScatterStars(std::mt19937& random) {
  std::uniform_real_distribution<float> chance(0, 1);
  for (std::size_t i = 0; i < Stars.size(); ++i) {
    Stars[i].x = chance(random) * width_;
    Stars[i].y = chance(random) * height_;
    const std::size_t depth = i / kStarsOfADepth + 1;
    Stars[i].z = static_cast<float>(depth) / 3;
  }
}

void ShipFlight::KeyDown(int keyCode) {
  if (keyCode == kLeftKey && !TurnRight) TurnLeft = true;
  if (keyCode == kRightKey && !TurnLeft) TurnRight = true;
  if (keyCode == kUpKey) Thrust = true;
}

void ShipFlight::KeyUp(int keyCode) {
  if (keyCode == kLeftKey) TurnLeft = false;
  if (keyCode == kRightKey) TurnRight = false;
  if (keyCode == kUpKey) Thrust = false;
}

void ShipFlight::MoveShip() {
  if (TurnRight) Heading += kTurnAFrame;
  if (TurnLeft) Heading -= kTurnAFrame;
  if (Thrust) AddThrust();
  for (Star& star : Stars) MoveStar(star);
}

// Exactly sideways the direction has no tangent and stays as it was.
void ShipFlight::AddThrust() {
  const float vx = MoveSpeed * std::sin(MoveDirection) + std::sin(Heading) * kThrustAFrame;
  const float vy = MoveSpeed * std::cos(MoveDirection) + std::cos(Heading) * kThrustAFrame;
  MoveSpeed = std::sqrt(vx * vx + vy * vy);
  if (vy > 0) MoveDirection = std::atan(vx / vy);
  if (vy < 0) MoveDirection = std::atan(vx / vy) + kHalfTurn;
}

// A star that leaves the field comes back at the opposite edge.
void ShipFlight::MoveStar(Star& star) const {
  star.x -= star.z * MoveSpeed * std::sin(MoveDirection);
  star.y += star.z * MoveSpeed * std::cos(MoveDirection);
  if (star.x > width_) star.x = 0;
  if (star.y > height_) star.y = 0;
  if (star.x < 0) star.x = width_;
  if (star.y < 0) star.y = height_;
}

std::array<CanvasPoint, 3> ShipFlight::Corners() const {
  const auto corner = [this](float angle) {
    return CanvasPoint{std::nearbyint(width_ / 2 + std::sin(angle) * kShipRadius),
                       std::nearbyint(height_ / 2 - std::cos(angle) * kShipRadius)};
  };
  return {corner(Heading), corner(Heading + 2 * kHalfTurn / 3), corner(Heading + 4 * kHalfTurn / 3)};
}

}  // namespace troth
