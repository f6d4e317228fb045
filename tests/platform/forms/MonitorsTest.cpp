// Where windows stand on a desktop of three monitors: the main one with a task bar at its foot, a larger one
// on its right whose scale is half as large again, and one on its left.
#include "platform/forms/Monitors.h"

#include <gtest/gtest.h>

namespace troth {

namespace {

constexpr Size kWindow{3000, 2000};

const MonitorList kMonitors{
    {.area = {0, 0, 28800, 16200}, .workArea = {0, 0, 28800, 15600}},
    {.area = {28800, -3000, 38400, 21600}, .workArea = {28800, -3000, 38400, 21600}, .percent = 150},
    {.area = {-15000, 4200, 15000, 12000}, .workArea = {-15000, 4200, 15000, 12000}}};

TEST(Monitors, TheScreenReachesFromTheMainMonitorToTheFarEdges) {
  EXPECT_EQ(ScreenSize(kMonitors), (Size{67200, 18600}));
}

TEST(Monitors, AWindowThatNoMonitorShowsGoesToTheNearest) {
  const struct {
    Point place, seen;
  } cases[] = {{{100, 100}, {100, 100}},
               {{27000, 15000}, {27000, 15000}},  // over two monitors
               {{-2901, 4300}, {-2901, 4300}},    // on the left one
               {{-16000, 4300}, {-16000, 4300}},  // enough of it is seen
               {{-17950, 4300}, {-15000, 4300}},  // too little
               {{-9000, 900}, {-9000, 4200}},     // above the left one
               {{400, 15550}, {400, 13600}},      // in the task bar
               {{63000, 18550}, {62700, 15600}},  // below the right one, where it is larger
               {{70000, 900}, {62700, 900}},      // right of all
               {{2147483647, -2147483647}, {62700, -3000}}};
  for (const auto& [place, seen] : cases)
    EXPECT_EQ(IntoSight(kMonitors, {place.left, place.top, kWindow.width, kWindow.height}), seen)
        << place.left << ", " << place.top;
}

TEST(Monitors, ADialogStandsInTheMiddleOfItsOwnerAndWithinItsMonitor) {
  const struct {
    Rect owner;
    Size dialog;
    Point place;
  } cases[] = {{{3000, 3000, 9000, 6000}, kWindow, {6000, 5000}},
               {{0, 0, 1500, 900}, kWindow, {0, 0}},
               {{26700, 14100, 2000, 2000}, kWindow, {25800, 13600}},
               {{30000, 0, 9000, 6000}, kWindow, {32250, 1500}},  // where it is larger
               {{-3000, 5000, 2000, 1000}, kWindow, {-3500, 4500}},
               {{3000, 3000, 9000, 6000}, {40000, 30000}, {0, 0}}};
  for (const auto& [owner, dialog, place] : cases)
    EXPECT_EQ(CentredOver(kMonitors, owner, dialog), place) << owner.left << ", " << owner.top;
}

TEST(Monitors, BelowAWindowThatFillsItsMonitorIsItsLowerEdge) {
  const struct {
    const char* what;
    Rect game;
    Point place;
  } cases[] = {{"an ordinary window", {900, 600, 12000, 9000}, {900, 9600}},
               {"half out on the left", {-300, 600, 12000, 9000}, {-300, 9600}},
               {"maximised, with its frame outside", {-120, -120, 29040, 15840}, {0, 13600}},
               {"without a frame", {0, 0, 28800, 16200}, {0, 13600}},
               {"without a frame on the right", {28800, -3000, 38400, 21600}, {28800, 15600}},
               {"as high as the screen", {6000, 0, 12000, 16200}, {6000, 13600}}};
  for (const auto& [what, game, place] : cases)
    EXPECT_EQ(RightBelow(kMonitors, game, kWindow), place) << what;
}

}  // namespace

}  // namespace troth
