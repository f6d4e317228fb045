#include "game/Raster.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace troth::game {
namespace {

constexpr int kSubRows = 4;  // vertical samples a pixel; horizontally the coverage is exact

int Channel(Colour colour, int shift) { return static_cast<int>((colour >> shift) & 0xFFU); }

Colour Pack(int red, int green, int blue) {
  return static_cast<Colour>(red) << 16 | static_cast<Colour>(green) << 8 | static_cast<Colour>(blue);
}

int MixChannel(int from, int to, float share) {
  return static_cast<int>(static_cast<float>(from) + static_cast<float>(to - from) * share + 0.5F);
}

// Adds the coverage of the span [left, right) to a row of pixels.
void Cover(std::vector<float>& row, float left, float right, float weight) {
  left = std::clamp(left, 0.0F, static_cast<float>(row.size()));
  right = std::clamp(right, 0.0F, static_cast<float>(row.size()));
  if (right <= left) return;
  const auto first = static_cast<std::size_t>(left);
  const auto last = static_cast<std::size_t>(right);
  if (first == last) {
    row[first] += (right - left) * weight;
    return;
  }
  row[first] += (static_cast<float>(first + 1) - left) * weight;
  for (std::size_t x = first + 1; x < last; ++x) row[x] += weight;
  if (last < row.size()) row[last] += (right - static_cast<float>(last)) * weight;
}

// Where the outline crosses a horizontal line, from left to right.
void FindCrossings(std::span<const Point> outline, float y, std::vector<float>& crossings) {
  crossings.clear();
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i];
    const Point b = outline[(i + 1) % outline.size()];
    if ((a.y <= y) == (b.y <= y)) continue;
    crossings.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
  }
  std::ranges::sort(crossings);
}

void AppendArc(std::vector<Point>& outline, Point centre, float radius, float fromQuarter) {
  const int steps = std::clamp(static_cast<int>(radius), 3, 24);
  for (int i = 0; i <= steps; ++i) {
    const float quarter = fromQuarter + static_cast<float>(i) / static_cast<float>(steps);
    const float angle = quarter * std::numbers::pi_v<float> / 2;
    outline.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
  }
}

void AppendRoundBox(std::vector<Point>& outline, float left, float top, float right, float bottom,
                    float radius) {
  radius = std::max(0.0F, std::min({radius, (right - left) / 2, (bottom - top) / 2}));
  AppendArc(outline, {right - radius, bottom - radius}, radius, 0);
  AppendArc(outline, {left + radius, bottom - radius}, radius, 1);
  AppendArc(outline, {left + radius, top + radius}, radius, 2);
  AppendArc(outline, {right - radius, top + radius}, radius, 3);
}

}  // namespace

Colour Mix(Colour from, Colour to, float share) {
  return Pack(MixChannel(Channel(from, 16), Channel(to, 16), share),
              MixChannel(Channel(from, 8), Channel(to, 8), share),
              MixChannel(Channel(from, 0), Channel(to, 0), share));
}

void Blend(Colour& pixel, Colour colour, float opacity) {
  pixel = opacity >= 1.0F ? colour : Mix(pixel, colour, opacity);
}

void FillPolygon(const Pixmap& target, std::span<const Point> outline, const Wash& wash) {
  if (outline.size() < 3) return;
  const auto [upper, lower] = std::ranges::minmax(outline, {}, &Point::y);
  const auto [leftmost, rightmost] = std::ranges::minmax(outline, {}, &Point::x);
  const int firstRow = std::max(0, static_cast<int>(std::floor(upper.y)));
  const int endRow = std::min(target.height, static_cast<int>(std::ceil(lower.y)));
  const int firstColumn = std::max(0, static_cast<int>(std::floor(leftmost.x)));
  const int endColumn = std::min(target.width, static_cast<int>(std::ceil(rightmost.x)));
  if (firstColumn >= endColumn) return;

  std::vector<float> coverage(static_cast<std::size_t>(endColumn - firstColumn));
  std::vector<float> crossings;
  const auto shift = static_cast<float>(firstColumn);
  for (int y = firstRow; y < endRow; ++y) {
    std::ranges::fill(coverage, 0.0F);
    for (int sub = 0; sub < kSubRows; ++sub) {
      const float at = static_cast<float>(y) + (static_cast<float>(sub) + 0.5F) / kSubRows;
      FindCrossings(outline, at, crossings);
      for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        Cover(coverage, crossings[i] - shift, crossings[i + 1] - shift, 1.0F / kSubRows);
    }
    const float share = (static_cast<float>(y) - upper.y) / std::max(1.0F, lower.y - upper.y);
    const Colour colour = Mix(wash.top, wash.bottom, std::clamp(share, 0.0F, 1.0F));
    Colour* pixel = &target.At(firstColumn, y);
    for (const float covered : coverage) {
      if (covered > 0.0F) Blend(*pixel, colour, std::min(covered, 1.0F) * wash.opacity);
      ++pixel;
    }
  }
}

void FillRoundBox(const Pixmap& target, const Box& box, float radius, const Wash& wash) {
  if (box.IsEmpty()) return;
  std::vector<Point> outline;
  AppendRoundBox(outline, static_cast<float>(box.left), static_cast<float>(box.top),
                 static_cast<float>(box.right), static_cast<float>(box.bottom), radius);
  FillPolygon(target, outline, wash);
}

void FrameRoundBox(const Pixmap& target, const Box& box, float radius, float thickness, const Wash& wash) {
  if (box.IsEmpty()) return;
  const auto left = static_cast<float>(box.left);
  const auto top = static_cast<float>(box.top);
  const auto right = static_cast<float>(box.right);
  const auto bottom = static_cast<float>(box.bottom);
  // Outer and inner outline in one: filled by parity, what is between them remains. The seam between the
  // two is walked there and back and so covers nothing.
  std::vector<Point> outline;
  AppendRoundBox(outline, left, top, right, bottom, radius);
  outline.push_back(outline.front());
  const std::size_t inner = outline.size();
  AppendRoundBox(outline, left + thickness, top + thickness, right - thickness, bottom - thickness,
                 radius - thickness);
  outline.push_back(outline[inner]);
  FillPolygon(target, outline, wash);
}

void FillCircle(const Pixmap& target, Point centre, float radius, const Wash& wash) {
  std::vector<Point> outline;
  for (int quarter = 0; quarter < 4; ++quarter)
    AppendArc(outline, centre, radius, static_cast<float>(quarter));
  FillPolygon(target, outline, wash);
}

void AddGlow(const Pixmap& target, Point centre, float radiusX, float radiusY, Colour colour,
             float strength) {
  const int left = std::max(0, static_cast<int>(centre.x - radiusX));
  const int right = std::min(target.width, static_cast<int>(centre.x + radiusX) + 1);
  const int top = std::max(0, static_cast<int>(centre.y - radiusY));
  const int bottom = std::min(target.height, static_cast<int>(centre.y + radiusY) + 1);
  for (int y = top; y < bottom; ++y) {
    const float dy = (static_cast<float>(y) - centre.y) / radiusY;
    for (int x = left; x < right; ++x) {
      const float dx = (static_cast<float>(x) - centre.x) / radiusX;
      const float distance = dx * dx + dy * dy;
      if (distance >= 1.0F) continue;
      const float light = strength * (1.0F - distance) * (1.0F - distance);
      Colour& pixel = target.At(x, y);
      // A grain of half a step hides the rings that so slow a fall-off would show in 8 bits.
      const float grain = Hash(x, y);
      const auto add = [&](int shift) {
        const float sum = static_cast<float>(Channel(pixel, shift)) +
                          static_cast<float>(Channel(colour, shift)) * light + grain;
        return std::min(255, static_cast<int>(sum));
      };
      pixel = Pack(add(16), add(8), add(0));
    }
  }
}

void DropShadow(const Pixmap& target, const Box& box, float reach, float strength) {
  const int margin = static_cast<int>(reach);
  const int top = std::max(0, box.top - margin);
  const int bottom = std::min(target.height, box.bottom + margin);
  const int left = std::max(0, box.left - margin);
  const int right = std::min(target.width, box.right + margin);
  for (int y = top; y < bottom; ++y) {
    const int dy = std::max({box.top - y, y - box.bottom + 1, 0});
    for (int x = left; x < right; ++x) {
      const int dx = std::max({box.left - x, x - box.right + 1, 0});
      const float away = std::sqrt(static_cast<float>(dx * dx + dy * dy)) / reach;
      if (away < 1.0F) Blend(target.At(x, y), 0x000000, strength * (1.0F - away) * (1.0F - away));
    }
  }
}

float Hash(int x, int y) {
  auto h = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
  h ^= h >> 15;
  h *= 0x2C1B3C6DU;
  h ^= h >> 13;
  h *= 0x297A2D39U;
  h ^= h >> 16;
  return static_cast<float>(h >> 8) / 16777216.0F;
}

float SmoothNoise(float x, float y) {
  const float floorX = std::floor(x);
  const float floorY = std::floor(y);
  const int cellX = static_cast<int>(floorX);
  const int cellY = static_cast<int>(floorY);
  const auto ease = [](float t) { return t * t * (3 - 2 * t); };
  const auto between = [](float from, float to, float share) { return from + (to - from) * share; };
  const float tx = ease(x - floorX);
  const float ty = ease(y - floorY);
  const float upper = between(Hash(cellX, cellY), Hash(cellX + 1, cellY), tx);
  const float lower = between(Hash(cellX, cellY + 1), Hash(cellX + 1, cellY + 1), tx);
  return between(upper, lower, ty);
}

}  // namespace troth::game
