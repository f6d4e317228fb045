// Places and sizes in twips (1440 to the inch), and colours. Used by everything above the backends;
// only the Windows backend knows pixels and DPI.
#pragma once

#include <cstdint>

namespace troth {

struct Point {
  int left = 0;
  int top = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Rect&, const Rect&) = default;
};

// Places on the screen in its own pixels, as the windows of other programs have them.
struct PixelPoint {
  int left = 0;
  int top = 0;
  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// 0x00BBGGRR: red in the low byte.
using Color = std::uint32_t;

// Each part from 0 to 255.
constexpr Color Rgb(int red, int green, int blue) {
  return static_cast<Color>(red) | static_cast<Color>(green) << 8 | static_cast<Color>(blue) << 16;
}

}  // namespace troth
