#include "platform/forms/Monitors.h"

#include <algorithm>
#include <cstdint>

namespace troth {

namespace {

// Stored places can be any number: sums of them need more room.
using Wide = std::int64_t;

Wide Overlap(Wide from, Wide length, Wide otherFrom, Wide otherLength) {
  return std::max<Wide>(0, std::min(from + length, otherFrom + otherLength) - std::max(from, otherFrom));
}

Wide Gap(Wide from, Wide length, Wide otherFrom, Wide otherLength) {
  return std::max<Wide>({0, otherFrom - (from + length), from - (otherFrom + otherLength)});
}

Size SizeOn(const Monitor& monitor, Size window) {
  return {window.width * monitor.percent / 100, window.height * monitor.percent / 100};
}

Point Into(const Rect& area, Point place, Size size) {
  return {std::max(area.left, std::min(place.left, area.left + area.width - size.width)),
          std::max(area.top, std::min(place.top, area.top + area.height - size.height))};
}

bool Covers(const Rect& outer, const Rect& inner) {
  return outer.left <= inner.left && outer.top <= inner.top &&
         outer.left + outer.width >= inner.left + inner.width &&
         outer.top + outer.height >= inner.top + inner.height;
}

}  // namespace

Size ScreenSize(const MonitorList& monitors) {
  Size size;
  for (const auto& [area, workArea, percent] : monitors)
    size = {std::max(size.width, area.left + area.width), std::max(size.height, area.top + area.height)};
  return size;
}

const Monitor& MonitorOf(const MonitorList& monitors, const Rect& part) {
  const auto shown = [&](const Monitor& monitor) {
    const Rect& area = monitor.area;
    return Overlap(part.left, part.width, area.left, area.width) *
           Overlap(part.top, part.height, area.top, area.height);
  };
  const auto distance = [&](const Monitor& monitor) {
    const Rect& area = monitor.area;
    return Gap(part.left, part.width, area.left, area.width) +
           Gap(part.top, part.height, area.top, area.height);
  };
  return *std::min_element(monitors.begin(), monitors.end(), [&](const Monitor& a, const Monitor& b) {
    return shown(a) != shown(b) ? shown(a) > shown(b) : distance(a) < distance(b);
  });
}

Rect OnScreen(const MonitorList& monitors, const Rect& outer) {
  const Size size = SizeOn(MonitorOf(monitors, outer), {outer.width, outer.height});
  return {outer.left, outer.top, size.width, size.height};
}

Point IntoSight(const MonitorList& monitors, const Rect& outer) {
  const Rect place = OnScreen(monitors, outer);
  const auto shows = [&](const Monitor& monitor) {
    const Rect& area = monitor.workArea;
    return Overlap(place.left, place.width, area.left, area.width) >= kLeastInSight &&
           Overlap(place.top, place.height, area.top, area.height) >= kLeastInSight;
  };
  if (std::any_of(monitors.begin(), monitors.end(), shows)) return {outer.left, outer.top};
  return Into(MonitorOf(monitors, outer).workArea, {outer.left, outer.top}, {place.width, place.height});
}

Point CentredOver(const MonitorList& monitors, const Rect& part, Size window) {
  const Monitor& monitor = MonitorOf(monitors, part);
  const Size size = SizeOn(monitor, window);
  return Into(monitor.workArea,
              {part.left + (part.width - size.width) / 2, part.top + (part.height - size.height) / 2}, size);
}

Point RightBelow(const MonitorList& monitors, const Rect& other, Size window) {
  const Monitor& monitor = MonitorOf(monitors, other);
  const Point below{other.left, other.top + other.height};
  if (Covers(other, monitor.workArea)) return Into(monitor.workArea, below, SizeOn(monitor, window));
  return IntoSight(monitors, {below.left, below.top, window.width, window.height});
}

}  // namespace troth
