#include "authoring/StepPictures.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>
#include <vector>

#include "platform/Geometry.h"

namespace troth {

namespace {

using Points = std::vector<CanvasPoint>;

constexpr double kPi = std::numbers::pi;

constexpr Color kDusk = Rgb(58, 44, 84);
constexpr Color kRose = Rgb(190, 104, 104);
constexpr Color kAmber = Rgb(248, 196, 128);
constexpr Color kSun = Rgb(255, 232, 178);
constexpr Color kFarHill = Rgb(112, 78, 96);
constexpr Color kNearHill = Rgb(56, 46, 68);
constexpr Color kPaper = Rgb(251, 241, 215);
constexpr Color kPaperShade = Rgb(226, 203, 158);
constexpr Color kPaperEdge = Rgb(178, 144, 98);
constexpr Color kInk = Rgb(134, 110, 92);
constexpr Color kLeaf = Rgb(52, 138, 92);
constexpr Color kWax = Rgb(186, 38, 52);
constexpr Color kWaxShade = Rgb(140, 24, 40);
constexpr Color kWaxLight = Rgb(216, 84, 88);
constexpr Color kGold = Rgb(236, 186, 70);
constexpr Color kGoldShade = Rgb(176, 124, 34);
constexpr Color kGoldLight = Rgb(255, 228, 150);
constexpr Color kGem = Rgb(190, 226, 246);
constexpr Color kGemShade = Rgb(120, 176, 214);
constexpr Color kFeather = Rgb(238, 243, 250);
constexpr Color kFeatherShade = Rgb(188, 204, 226);

std::uint32_t Blend(std::uint32_t from, std::uint32_t to, double share) {
  return static_cast<std::uint32_t>(
      std::lround(static_cast<double>(from) + (static_cast<double>(to) - static_cast<double>(from)) * share));
}

Color BlendColors(Color from, Color to, double share) {
  const auto part = [&](int shift) {
    return Blend((from >> shift) & 255, (to >> shift) & 255, share) << shift;
  };
  return part(0) | part(8) | part(16);
}

// A place of its own on the canvas, turned: shapes are given as if it stood upright at the origin.
struct Turned {
  CanvasPoint origin;
  double angle = 0;

  CanvasPoint At(double x, double y) const {
    return {origin.x + x * std::cos(angle) - y * std::sin(angle),
            origin.y + x * std::sin(angle) + y * std::cos(angle)};
  }
  Points Box(double left, double top, double right, double bottom) const {
    return {At(left, top), At(right, top), At(right, bottom), At(left, bottom)};
  }
};

// Part of an ellipse, from one angle to the other, in steps that show no corners.
Points Arc(CanvasPoint centre, double radiusX, double radiusY, double from = 0, double to = 2 * kPi) {
  constexpr int kSteps = 64;
  Points points;
  for (int i = 0; i <= kSteps; ++i) {
    const double angle = from + (to - from) * i / kSteps;
    points.push_back({centre.x + radiusX * std::cos(angle), centre.y + radiusY * std::sin(angle)});
  }
  return points;
}

// Part of a ring between two radii.
Points Band(CanvasPoint centre, double outer, double inner, double from = 0, double to = 2 * kPi) {
  Points points = Arc(centre, outer, outer, from, to);
  const Points inside = Arc(centre, inner, inner, to, from);
  points.insert(points.end(), inside.begin(), inside.end());
  return points;
}

Points RoundedBox(double left, double top, double right, double bottom, double radius) {
  Points points;
  const auto corner = [&](double x, double y, double from) {
    const Points arc = Arc({x, y}, radius, radius, from, from + kPi / 2);
    points.insert(points.end(), arc.begin(), arc.end());
  };
  corner(left + radius, top + radius, kPi);
  corner(right - radius, top + radius, 1.5 * kPi);
  corner(right - radius, bottom - radius, 0);
  corner(left + radius, bottom - radius, kPi / 2);
  return points;
}

void DrawHeart(Canvas& canvas, CanvasPoint centre, double size, Color color) {
  Points points;
  for (int i = 0; i < 64; ++i) {
    const double t = 2 * kPi * i / 64;
    const double x = 16 * std::pow(std::sin(t), 3);
    const double y = 13 * std::cos(t) - 5 * std::cos(2 * t) - 2 * std::cos(3 * t) - std::cos(4 * t);
    points.push_back({centre.x + x * size / 32, centre.y - y * size / 32});
  }
  canvas.FillPolygon(points, color);
}

void DrawSparkle(Canvas& canvas, CanvasPoint centre, double size) {
  const double waist = size / 6;
  const auto [x, y] = centre;
  canvas.FillPolygon(Points{{x, y - size},
                            {x + waist, y - waist},
                            {x + size, y},
                            {x + waist, y + waist},
                            {x, y + size},
                            {x - waist, y + waist},
                            {x - size, y},
                            {x - waist, y - waist}},
                     kGoldLight);
}

// The same evening for every step: sky, first stars, a low sun and hills.
void DrawEvening(Canvas& canvas) {
  const CanvasScale scale = kStepPictureScale;
  constexpr int kBands = 60;
  constexpr double kHorizon = 205;
  for (int band = 0; band < kBands; ++band) {
    const double share = static_cast<double>(band) / (kBands - 1);
    const Color color = share < 0.6 ? BlendColors(kDusk, kRose, share / 0.6)
                                    : BlendColors(kRose, kAmber, (share - 0.6) / 0.4);
    canvas.FillBox({0, kHorizon * band / kBands}, {scale.right, kHorizon * (band + 1) / kBands}, color);
  }
  canvas.FillBox({0, kHorizon}, {scale.right, scale.bottom}, kAmber);
  for (const CanvasPoint star : {CanvasPoint{14, 18}, {36, 9}, {58, 27}, {83, 13}, {95, 39}, {24, 40}})
    canvas.FillDisc(star, 0.9, kSun);
  canvas.FillDisc({70, 196}, 17, BlendColors(kAmber, kSun, 0.5));
  canvas.FillDisc({70, 196}, 13, kSun);
  Points far;
  Points near;
  for (int x = 0; x <= 105; x += 3) {
    far.push_back({static_cast<double>(x), 203 - 9 * std::sin(x / 105.0 * 5 + 0.6)});
    near.push_back({static_cast<double>(x), 219 + 7 * std::sin(x / 105.0 * 4.4 + 2.6)});
  }
  for (Points* hills : {&far, &near}) {
    hills->push_back({scale.right, scale.bottom});
    hills->push_back({0, scale.bottom});
  }
  canvas.FillPolygon(far, kFarHill);
  canvas.FillPolygon(near, kNearHill);
}

// Lines of writing on paper that stands as `place` says.
void DrawWriting(Canvas& canvas, const Turned& place, double top, std::span<const double> lengths) {
  for (std::size_t line = 0; line < lengths.size(); ++line) {
    const double y = top + 9.0 * static_cast<double>(line);
    canvas.FillPolygon(place.Box(-lengths[line] / 2, y, lengths[line] / 2, y + 2), kInk);
  }
}

// A rolled end of a scroll, between two knobs.
void DrawRoll(Canvas& canvas, double y) {
  canvas.FillPolygon(RoundedBox(15, y - 7, 84, y + 7, 7), kPaperEdge);
  canvas.FillPolygon(RoundedBox(15, y - 6, 84, y + 5, 5.5), kPaperShade);
  canvas.FillBox({20, y - 4.5}, {79, y - 2}, kPaper);
  for (const double x : {16.0, 83.0}) {
    canvas.FillDisc({x, y}, 5.5, kPaperEdge);
    canvas.FillDisc({x, y}, 3, kNearHill);
  }
}

void DrawQuill(Canvas& canvas) {
  const CanvasPoint tip{57, 148};
  const CanvasPoint top{99, 52};
  const double length = std::hypot(top.x - tip.x, top.y - tip.y);
  const Turned shaft{tip, std::atan2(top.y - tip.y, top.x - tip.x)};
  const auto bend = [](double share) { return -7 * share * share; };
  const auto vane = [&](double side) {
    Points points;
    for (int i = 0; i <= 40; ++i) {
      const double share = 0.22 + 0.78 * i / 40;
      const double width = 11 * std::pow(std::sin(kPi * i / 40), 0.6) * side;
      points.push_back(shaft.At(length * share, bend(share) + width));
    }
    for (int i = 40; i >= 0; --i) {
      const double share = 0.22 + 0.78 * i / 40;
      points.push_back(shaft.At(length * share, bend(share)));
    }
    return points;
  };
  canvas.FillPolygon(vane(-1), kFeather);
  canvas.FillPolygon(vane(0.8), kFeatherShade);
  Points rib;
  for (int i = 0; i <= 40; ++i)
    rib.push_back(shaft.At(length * i / 42, bend(i / 42.0) - 1.0 * (42 - i) / 42));
  for (int i = 40; i >= 0; --i)
    rib.push_back(shaft.At(length * i / 42, bend(i / 42.0) + 1.4 * (42 - i) / 42));
  canvas.FillPolygon(rib, kPaperEdge);
  canvas.FillPolygon(Points{shaft.At(-4, 0), shaft.At(7, -1.8), shaft.At(7, 1.8)}, kNearHill);
}

void DrawScrollAndQuill(Canvas& canvas) {
  canvas.FillBox({21, 70}, {79, 160}, kPaperEdge);
  canvas.FillBox({22, 70}, {78, 160}, kPaper);
  DrawHeart(canvas, {50, 91}, 12, kWax);
  constexpr double kLengths[] = {42, 34, 42, 26};
  DrawWriting(canvas, {{50, 0}}, 106, kLengths);
  DrawRoll(canvas, 68);
  DrawRoll(canvas, 160);
  DrawQuill(canvas);
}

void DrawListWithTicks(Canvas& canvas) {
  const Turned sheet{{52, 114}, -0.09};
  canvas.FillPolygon(sheet.Box(-34, -52, 38, 58), kNearHill);
  canvas.FillPolygon(sheet.Box(-36, -55, 36, 55), kPaperEdge);
  canvas.FillPolygon(sheet.Box(-35, -54, 35, 54), kPaper);
  canvas.FillPolygon(sheet.Box(-22, -46, 22, -42.5), kWax);
  constexpr double kLengths[] = {34, 26, 36, 30, 22};
  for (int row = 0; row < 5; ++row) {
    const double y = -30 + 17.0 * row;
    canvas.FillPolygon(sheet.Box(-28, y - 5, -18, y + 5), kInk);
    canvas.FillPolygon(sheet.Box(-26.8, y - 3.8, -19.2, y + 3.8), kPaper);
    canvas.FillPolygon(sheet.Box(-12, y - 1.2, -12 + kLengths[row], y + 1.2), kInk);
    if (row == 3) continue;
    canvas.FillPolygon(Points{sheet.At(-28, y - 1.5), sheet.At(-24, y + 2), sheet.At(-15.5, y - 9),
                              sheet.At(-13, y - 7.5), sheet.At(-23.5, y + 6.5), sheet.At(-29.5, y + 1)},
                       kLeaf);
  }
}

void DrawRing(Canvas& canvas, CanvasPoint centre, double from = 0, double to = 2 * kPi) {
  canvas.FillPolygon(Band(centre, 27, 19, from, to), kGoldShade);
  canvas.FillPolygon(Band(centre, 26, 20, from, to), kGold);
  canvas.FillPolygon(Band(centre, 24.8, 23, from, to), kGoldLight);
}

void DrawTwoRings(Canvas& canvas) {
  const CanvasPoint first{40, 116};
  const CanvasPoint second{66, 130};
  DrawRing(canvas, first);
  DrawRing(canvas, second);
  // They go through each other: at one of the two crossings the first lies on top.
  DrawRing(canvas, first, -0.6, 0.15);
  const CanvasPoint gem{40, 80};
  const auto [x, y] = gem;
  canvas.FillPolygon(Points{{x - 6, y + 12}, {x + 6, y + 12}, {x + 4, y + 6}, {x - 4, y + 6}}, kGoldShade);
  canvas.FillPolygon(Points{{x - 13, y - 4}, {x - 7, y - 11}, {x + 7, y - 11}, {x + 13, y - 4}, {x, y + 11}},
                     kGem);
  canvas.FillPolygon(Points{{x - 13, y - 4}, {x - 5, y - 4}, {x, y + 11}}, kGemShade);
  canvas.FillPolygon(Points{{x + 13, y - 4}, {x + 5, y - 4}, {x, y + 11}}, BlendColors(kGem, kGemShade, 0.5));
  canvas.FillPolygon(Points{{x - 7, y - 11}, {x, y - 11}, {x - 5, y - 4}, {x - 13, y - 4}}, kFeather);
  DrawSparkle(canvas, {62, 74}, 8);
  DrawSparkle(canvas, {20, 68}, 5);
  DrawSparkle(canvas, {90, 100}, 6);
}

void DrawBubbles(Canvas& canvas) {
  canvas.FillPolygon(RoundedBox(11, 54, 77, 102, 14), kPaper);
  canvas.FillPolygon(Points{{22, 96}, {40, 100}, {20, 116}}, kPaper);
  DrawHeart(canvas, {44, 79}, 28, kWax);
  canvas.FillPolygon(RoundedBox(33, 120, 97, 170, 14), kGold);
  canvas.FillPolygon(Points{{70, 168}, {88, 162}, {90, 184}}, kGold);
  for (const double x : {55.0, 75.0}) canvas.FillPolygon(Arc({x, 138}, 3, 4.5), kNearHill);
  canvas.FillPolygon(Band({65, 142}, 17, 13.5, 0.25, kPi - 0.25), kNearHill);
  canvas.FillDisc({46, 148}, 4, kRose);
  canvas.FillDisc({84, 148}, 4, kRose);
}

void DrawSeal(Canvas& canvas, CanvasPoint centre) {
  for (int i = 0; i < 11; ++i) {
    const double angle = 2 * kPi * i / 11;
    canvas.FillDisc({centre.x + 13 * std::cos(angle), centre.y + 13 * std::sin(angle)}, 5, kWax);
  }
  canvas.FillDisc(centre, 15, kWax);
  canvas.FillDisc(centre, 11.5, kWaxShade);
  canvas.FillDisc({centre.x + 0.8, centre.y + 0.8}, 10.7, kWax);
  DrawHeart(canvas, centre, 13, kWaxLight);
}

void DrawSealedScript(Canvas& canvas) {
  const Turned scroll{{52, 118}, -0.22};
  canvas.FillPolygon(scroll.Box(-40, -17, 40, 19), kPaperEdge);
  canvas.FillPolygon(scroll.Box(-40, -16, 40, 17), kPaperShade);
  canvas.FillPolygon(scroll.Box(-40, -12, 40, 6), kPaper);
  for (const double x : {-40.0, 40.0}) {
    canvas.FillDisc(scroll.At(x, 0.5), 18, kPaperEdge);
    canvas.FillDisc(scroll.At(x, 0.5), 16.5, kPaperShade);
    canvas.FillDisc(scroll.At(x, 0.5), 11, kPaper);
    canvas.FillDisc(scroll.At(x, 0.5), 6, kPaperShade);
    canvas.FillDisc(scroll.At(x, 0.5), 3, kPaperEdge);
  }
  canvas.FillPolygon(
      Points{scroll.At(-5, 10), scroll.At(3, 10), scroll.At(-4, 52), scroll.At(-10, 45), scroll.At(-17, 49)},
      kWaxShade);
  canvas.FillPolygon(
      Points{scroll.At(-3, 10), scroll.At(6, 10), scroll.At(20, 46), scroll.At(13, 44), scroll.At(8, 51)},
      kWax);
  canvas.FillPolygon(scroll.Box(-6, -17, 6, 19), kWax);
  canvas.FillPolygon(scroll.Box(-4.5, -17, -3, 19), kWaxLight);
  DrawSeal(canvas, scroll.At(0, 4));
  DrawSparkle(canvas, {28, 74}, 7);
  DrawSparkle(canvas, {80, 70}, 5);
}

}  // namespace

void DrawStepPicture(Canvas& canvas, std::size_t step) {
  using Draw = void (*)(Canvas&);
  constexpr std::array<Draw, 5> kObjects{DrawScrollAndQuill, DrawListWithTicks, DrawTwoRings, DrawBubbles,
                                         DrawSealedScript};
  canvas.SetScale(kStepPictureScale);
  DrawEvening(canvas);
  kObjects[step](canvas);
}

}  // namespace troth
