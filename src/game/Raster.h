// A software brush over 32-bit pixels: smooth polygons, round boxes, glows and noise. The painted scene is
// made with it once per size; nothing is drawn with it per character.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace troth::game {

using Colour = std::uint32_t;  // 0x00RRGGBB

// Rows from top to bottom, without gaps. Does not own the pixels.
struct Pixmap {
  Colour* pixels = nullptr;
  int width = 0;
  int height = 0;

  Colour& At(int x, int y) const { return pixels[static_cast<std::ptrdiff_t>(y) * width + x]; }
};

struct Point {
  float x;
  float y;
};

// In pixels; right and bottom are exclusive.
struct Box {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool IsEmpty() const { return right <= left || bottom <= top; }
  bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
  Box Shrunk(int by) const { return {left + by, top + by, right - by, bottom - by}; }
};

// A wash from top to bottom of the shape; opacity 0 to 1.
struct Wash {
  Colour top;
  Colour bottom;
  float opacity = 1.0F;
};

Colour Mix(Colour from, Colour to, float share);
void Blend(Colour& pixel, Colour colour, float opacity);

void FillPolygon(const Pixmap& target, std::span<const Point> outline, const Wash& wash);
void FillRoundBox(const Pixmap& target, const Box& box, float radius, const Wash& wash);
// A frame of the given thickness just inside the box.
void FrameRoundBox(const Pixmap& target, const Box& box, float radius, float thickness, const Wash& wash);
void FillCircle(const Pixmap& target, Point centre, float radius, const Wash& wash);
// Light that falls off to nothing at the radius; it adds to what is there.
void AddGlow(const Pixmap& target, Point centre, float radiusX, float radiusY, Colour colour, float strength);
// Darkens the box and, fading out, its surroundings within reach.
void DropShadow(const Pixmap& target, const Box& box, float reach, float strength);

// Repeatable noise: the same place gives the same value, 0 to 1.
float Hash(int x, int y);
float SmoothNoise(float x, float y);

}  // namespace troth::game
