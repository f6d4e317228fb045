// The arithmetic of the hidden game: a ship that drifts in the middle of a star field, without friction and
// without a speed limit. Flying it moves the stars. Knows no window, no clock and no colour.
#pragma once

#include <array>
#include <random>

#include "platform/forms/Canvas.h"

namespace troth {

struct Star {
  float x = 0;
  float y = 0;
  float z = 0;  // how near it is: near stars move faster
};

class ShipFlight {
 public:
  static constexpr float kShipRadius = 10;

  // The size of the field, in the units in which everything here is measured.
  ShipFlight(float width, float height) : width_(width), height_(height) {}

  // Gives each star a place by chance and its depth by its number.
  void ScatterStars(std::mt19937& random);

  // Virtual key codes; other keys than left, right and up do nothing. The first of two opposite keys counts.
  void KeyDown(int keyCode);
  void KeyUp(int keyCode);

  // One frame: turns the ship, adds its thrust to its motion, and moves the stars by it.
  void MoveShip();

  // The nose and the two corners of the tail, clockwise, on whole units.
  std::array<CanvasPoint, 3> Corners() const;

  // In radians, clockwise from straight up.
  float Heading = 0;
  float MoveDirection = 0;
  // Per frame.
  float MoveSpeed = 0;
  bool TurnLeft = false;
  bool TurnRight = false;
  bool Thrust = false;
  std::array<Star, 40> Stars{};

 private:
  void AddThrust();
  void MoveStar(Star& star) const;

  float width_;
  float height_;
};

}  // namespace troth
