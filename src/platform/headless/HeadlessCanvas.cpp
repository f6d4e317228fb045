#include "platform/headless/HeadlessCanvas.h"

#include <algorithm>
#include <cmath>

namespace troth {

namespace {

constexpr double kTwipsAPoint = 20;

// Even-odd rule, on the edges that a ray to the right crosses.
bool IsInside(const std::vector<CanvasPoint>& corners, CanvasPoint place) {
  bool inside = false;
  for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++) {
    const CanvasPoint& a = corners[i];
    const CanvasPoint& b = corners[before];
    if ((a.y > place.y) == (b.y > place.y)) continue;
    if (place.x < a.x + (place.y - a.y) / (b.y - a.y) * (b.x - a.x)) inside = !inside;
  }
  return inside;
}

}  // namespace

double HeadlessCanvas::TextWidth(const std::wstring& text, const CanvasFont& font) const {
  const double twips = static_cast<double>(text.size()) * font.points * kTwipsAPoint / 2;
  return twips / canvas_.Bounds().width * canvas_.Scale().Width();
}

Color HeadlessCanvas::ColorAt(CanvasPoint place) const {
  const CanvasScale& now = canvas_.Scale();
  const double right = (place.x - now.left) / now.Width();
  const double down = (place.y - now.top) / now.Height();
  const auto last = std::find_if(strokes_.rbegin(), strokes_.rend(), [&](const CanvasStroke& stroke) {
    const CanvasScale& then = stroke.scale;
    return Covers(stroke, {then.left + right * then.Width(), then.top + down * then.Height()});
  });
  return last == strokes_.rend() ? canvas_.BackColor().value_or(0) : last->color;
}

bool HeadlessCanvas::Covers(const CanvasStroke& stroke, CanvasPoint place) const {
  switch (stroke.act) {
    case CanvasAct::Clear:
      return true;
    case CanvasAct::Box: {
      const auto [left, right] = std::minmax(stroke.points[0].x, stroke.points[1].x);
      const auto [top, bottom] = std::minmax(stroke.points[0].y, stroke.points[1].y);
      return place.x >= left && place.x < right && place.y >= top && place.y < bottom;
    }
    case CanvasAct::Disc: {
      const Rect& bounds = canvas_.Bounds();
      const double squeeze = stroke.scale.Width() / stroke.scale.Height() * bounds.height / bounds.width;
      return std::hypot(place.x - stroke.points[0].x, (place.y - stroke.points[0].y) * squeeze) <=
             stroke.radius;
    }
    case CanvasAct::Polygon:
      return IsInside(stroke.points, place);
    default:
      return false;
  }
}

}  // namespace troth
