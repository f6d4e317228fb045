#include "game/Moorland.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace troth::game {
namespace {

constexpr float kHorizon = 0.345F;  // all places are shares of the height or the width

struct Stop {
  float at;
  Colour colour;
};

constexpr std::array<Stop, 7> kSky{{{0.00F, 0x0B1029},
                                    {0.30F, 0x1C2350},
                                    {0.55F, 0x40386E},
                                    {0.74F, 0x7A4F77},
                                    {0.87F, 0xBF7568},
                                    {0.96F, 0xE9A874},
                                    {1.00F, 0xF4C58C}}};

Colour SkyAt(float at) {
  for (std::size_t i = 1; i < kSky.size(); ++i) {
    if (at > kSky[i].at) continue;
    const Stop& from = kSky[i - 1];
    return Mix(from.colour, kSky[i].colour, (at - from.at) / (kSky[i].at - from.at));
  }
  return kSky.back().colour;
}

struct Hill {
  float base;
  float height;
  float frequency;
  float seed;
  Colour ridge;
  Colour foot;  // haze gathers at the foot of the far hills
};

constexpr std::array<Hill, 4> kHills{{{0.325F, 0.060F, 1.9F, 3.7F, 0x6B5478, 0x9A7284},
                                      {0.360F, 0.055F, 2.6F, 11.2F, 0x483D66, 0x6B547A},
                                      {0.400F, 0.050F, 1.7F, 29.5F, 0x2C2847, 0x453A5E},
                                      {0.450F, 0.040F, 1.5F, 47.1F, 0x171629, 0x0C0B16}}};
constexpr std::size_t kChapelHill = 2;
constexpr std::size_t kNearHill = 3;

class Moorland {
 public:
  explicit Moorland(const Pixmap& target)
      : target_(target),
        width_(static_cast<float>(target.width)),
        height_(static_cast<float>(target.height)),
        unit_(std::min(height_, width_ * 0.75F)) {}

  void Paint() {
    PaintSky();
    PaintStars();
    PaintMoon({width_ * 0.765F, height_ * 0.125F}, unit_ * 0.043F);
    AddGlow(target_, {width_ * 0.36F, height_ * kHorizon}, width_ * 0.5F, height_ * 0.16F, 0xFFB070, 0.30F);
    PaintHill(0);
    PaintHill(1);
    PaintHill(kChapelHill);
    PaintChapel(width_ * 0.60F);
    PaintHill(kNearHill);
    PaintGrass();
    PaintStones();
    PaintKestrel({width_ * 0.445F, height_ * 0.16F}, unit_ * 0.030F);
    PaintVignette();
  }

 private:
  float RidgeY(std::size_t hill, float x) const {
    const Hill& h = kHills[hill];
    const float along = x / unit_ * h.frequency;
    const float wave = SmoothNoise(along, h.seed) * 0.75F + SmoothNoise(along * 3.1F, h.seed + 5) * 0.25F;
    return (h.base + h.height * (0.5F - wave)) * height_;
  }

  void PaintSky() const;
  void PaintStars() const;
  void PaintMoon(Point centre, float radius) const;
  void PaintHill(std::size_t hill) const;
  void PaintChapel(float x) const;
  void PaintGrass() const;
  void PaintStones() const;
  void PaintStone(float x, float width, float height, float lean) const;
  void PaintKestrel(Point at, float span) const;
  void PaintVignette() const;

  // A shape given in fractions of a size around a point, y upwards.
  void Fill(Point at, float size, std::vector<Point> shape, const Wash& wash) const {
    for (Point& p : shape) p = {at.x + p.x * size, at.y - p.y * size};
    FillPolygon(target_, shape, wash);
  }

  const Pixmap& target_;
  float width_;
  float height_;
  float unit_;
};

void Moorland::PaintSky() const {
  const float horizon = (kHorizon + 0.03F) * height_;
  const int end = std::min(target_.height, static_cast<int>(horizon) + 1);
  for (int y = 0; y < end; ++y) {
    const float at = static_cast<float>(y) / horizon;
    const float inBand = std::clamp(1.0F - std::abs(at - 0.74F) / 0.30F, 0.0F, 1.0F);
    const Colour lit = Mix(0x6A5484, 0xF6B48C, std::clamp((at - 0.5F) * 2.2F, 0.0F, 1.0F));
    const float cloudY = static_cast<float>(y) / unit_;
    for (int x = 0; x < target_.width; ++x) {
      Colour& pixel = target_.At(x, y);
      // The grain breaks up the steps of a gradient that is slow against 8 bits.
      pixel = SkyAt(at + (Hash(x, y) - 0.5F) * 0.02F);
      if (inBand <= 0.0F) continue;
      const float cloudX = static_cast<float>(x) / unit_;
      const float cloud = SmoothNoise(cloudX * 3.2F, cloudY * 34.0F) * 0.62F +
                          SmoothNoise(cloudX * 8.5F + 40, cloudY * 80.0F) * 0.38F;
      const float thick = std::clamp((cloud - 0.50F) * 2.4F, 0.0F, 0.6F) * inBand;
      if (thick > 0.0F) Blend(pixel, lit, thick);
    }
  }
}

void Moorland::PaintStars() const {
  constexpr int kStars = 150;
  for (int i = 0; i < kStars; ++i) {
    const float depth = Hash(i, 1);
    const Point at{Hash(i, 2) * width_, depth * depth * kHorizon * 0.75F * height_};
    const float bright = 0.25F + 0.65F * Hash(i, 3) * (1.0F - depth);
    const float radius = unit_ * (0.0007F + 0.0011F * Hash(i, 4) * Hash(i, 5));
    FillCircle(target_, at, std::max(radius, 0.6F), {0xFFF6E0, 0xFFF6E0, bright});
  }
}

void Moorland::PaintMoon(Point centre, float radius) const {
  AddGlow(target_, centre, radius * 6.5F, radius * 6.5F, 0xA8B4FF, 0.20F);
  AddGlow(target_, centre, radius * 2.2F, radius * 2.2F, 0xFFF0D0, 0.30F);
  FillCircle(target_, centre, radius, {0xFBF3DC, 0xE3D3B4});
  const auto sea = [&](float x, float y, float size) {
    FillCircle(target_, {centre.x + x * radius, centre.y + y * radius}, size * radius,
               {0x8F86A0, 0x8F86A0, 0.16F});
  };
  sea(-0.30F, -0.28F, 0.34F);
  sea(0.28F, -0.10F, 0.24F);
  sea(-0.12F, 0.34F, 0.28F);
  sea(0.38F, 0.38F, 0.14F);
}

void Moorland::PaintHill(std::size_t hill) const {
  const Hill& h = kHills[hill];
  const bool nearest = hill == kNearHill;
  const float fade = nearest ? 0.40F * height_ : 0.07F * height_;
  for (int x = 0; x < target_.width; ++x) {
    const auto column = static_cast<float>(x);
    const float ridge = RidgeY(hill, column);
    // Below the next ridge this hill is hidden.
    const float end = nearest ? height_ : RidgeY(hill + 1, column) + 2;
    const int first = std::max(0, static_cast<int>(std::floor(ridge)));
    for (int y = first; y < std::min(target_.height, static_cast<int>(end)); ++y) {
      const float down = static_cast<float>(y) - ridge;
      const float share = std::clamp(down / fade + (Hash(x, y) - 0.5F) * 0.06F, 0.0F, 1.0F);
      Colour colour = Mix(h.ridge, h.foot, share);
      if (nearest) {
        const float heather = SmoothNoise(column / unit_ * 26.0F, static_cast<float>(y) / unit_ * 60.0F);
        if (heather > 0.55F) colour = Mix(colour, 0x4A2C56, (heather - 0.55F) * 0.9F);
      }
      Blend(target_.At(x, y), colour, std::clamp(down + 1.0F, 0.0F, 1.0F));
    }
  }
}

void Moorland::PaintChapel(float x) const {
  const float size = unit_ * 0.115F;
  const Point at{x, RidgeY(kChapelHill, x) + size * 0.08F};
  const Wash wall{0x1F1C33, 0x17152A};
  const Wash roof{0x151327, 0x100F20};
  const Wash rim{0xD58E72, 0x8A5A6A, 0.55F};

  AddGlow(target_, {at.x + 0.32F * size, at.y - 0.25F * size}, size * 1.1F, size * 0.7F, 0xFFB45A, 0.22F);
  // Nave, roof, tower, spire, finial.
  Fill(at, size, {{-0.15F, 0}, {-0.15F, 0.46F}, {0.95F, 0.46F}, {0.95F, 0}}, wall);
  Fill(at, size, {{-0.20F, 0.44F}, {-0.06F, 0.82F}, {0.88F, 0.82F}, {1.01F, 0.44F}}, roof);
  Fill(at, size, {{-0.42F, 0}, {-0.42F, 0.98F}, {-0.05F, 0.98F}, {-0.05F, 0}}, wall);
  Fill(at, size, {{-0.47F, 0.97F}, {-0.235F, 1.72F}, {0.0F, 0.97F}}, roof);
  Fill(at, size, {{-0.25F, 1.68F}, {-0.25F, 1.90F}, {-0.22F, 1.90F}, {-0.22F, 1.68F}}, roof);
  Fill(at, size, {{-0.31F, 1.80F}, {-0.31F, 1.83F}, {-0.16F, 1.83F}, {-0.16F, 1.80F}}, roof);
  // The last light catches the western edges.
  Fill(at, size, {{-0.42F, 0}, {-0.42F, 0.98F}, {-0.395F, 0.98F}, {-0.395F, 0}}, rim);
  Fill(at, size, {{-0.47F, 0.97F}, {-0.235F, 1.72F}, {-0.235F, 1.66F}, {-0.445F, 0.97F}}, rim);
  Fill(at, size, {{-0.06F, 0.82F}, {0.88F, 0.82F}, {0.87F, 0.795F}, {-0.05F, 0.795F}}, rim);
  // Someone has lit the candles.
  const auto window = [&](float left, float bottom, float width, float height) {
    const float right = left + width;
    const float shoulder = bottom + height * 0.62F;
    Fill(at, size,
         {{left, bottom},
          {left, shoulder},
          {left + width * 0.22F, shoulder + height * 0.24F},
          {left + width * 0.5F, bottom + height},
          {right - width * 0.22F, shoulder + height * 0.24F},
          {right, shoulder},
          {right, bottom}},
         {0xFFDE93, 0xF29B45});
  };
  window(0.10F, 0.12F, 0.11F, 0.27F);
  window(0.36F, 0.12F, 0.11F, 0.27F);
  window(0.62F, 0.12F, 0.11F, 0.27F);
  window(-0.29F, 0.62F, 0.10F, 0.23F);
}

void Moorland::PaintGrass() const {
  const float step = std::max(2.0F, unit_ * 0.004F);
  int blade = 0;
  for (float x = 0; x < width_; x += step, ++blade) {
    const float tall = unit_ * (0.004F + 0.013F * Hash(blade, 71));
    const float lean = unit_ * 0.006F * (Hash(blade, 72) - 0.25F);
    const float foot = RidgeY(kNearHill, x) + 2;
    const std::array<Point, 3> shape{
        {{x - step * 0.4F, foot}, {x + lean, foot - tall}, {x + step * 0.4F, foot}}};
    FillPolygon(target_, shape, {kHills[kNearHill].ridge, kHills[kNearHill].ridge});
  }
}

void Moorland::PaintStone(float x, float width, float height, float lean) const {
  const Point at{x, RidgeY(kNearHill, x) + unit_ * 0.008F};
  const float w = width / 2;
  Fill(at, unit_,
       {{-w, 0},
        {-w * 0.93F + lean * 0.5F, height * 0.52F},
        {-w * 0.70F + lean, height * 0.93F},
        {-w * 0.15F + lean, height},
        {w * 0.66F + lean, height * 0.95F},
        {w * 0.90F + lean * 0.6F, height * 0.55F},
        {w, 0}},
       {0x2A2740, 0x15142A});
  Fill(at, unit_,
       {{w * 0.66F + lean, height * 0.95F},
        {w * 0.90F + lean * 0.6F, height * 0.55F},
        {w, 0},
        {w * 0.86F, 0},
        {w * 0.74F + lean * 0.6F, height * 0.55F},
        {w * 0.52F + lean, height * 0.95F}},
       {0xC98873, 0x4A3A58, 0.5F});
}

void Moorland::PaintStones() const {
  PaintStone(width_ * 0.135F - unit_ * 0.078F, 0.030F, 0.085F, -0.006F);
  PaintStone(width_ * 0.135F, 0.036F, 0.112F, 0.002F);
  PaintStone(width_ * 0.135F + unit_ * 0.078F, 0.034F, 0.112F, 0.000F);
  PaintStone(width_ * 0.135F + unit_ * 0.165F, 0.030F, 0.072F, 0.010F);
  PaintStone(width_ * 0.135F + unit_ * 0.255F, 0.040F, 0.034F, -0.004F);
  // A lintel over the tallest two.
  const float left = width_ * 0.135F - unit_ * 0.028F;
  const float right = width_ * 0.135F + unit_ * 0.105F;
  const float y = RidgeY(kNearHill, width_ * 0.135F) - unit_ * 0.100F;
  const float thick = unit_ * 0.024F;
  const std::array<Point, 5> lintel{{{left, y},
                                     {left + thick * 0.3F, y - thick},
                                     {right - thick * 0.2F, y - thick * 1.05F},
                                     {right, y - thick * 0.2F},
                                     {right - thick * 0.1F, y + thick * 0.1F}}};
  FillPolygon(target_, lintel, {0x302B46, 0x232038});
}

void Moorland::PaintKestrel(Point at, float span) const {
  const Wash dark{0x15142A, 0x1B1930};
  // Hovering into the wind: wings raised, tail fanned.
  Fill(at, span,
       {{0.10F, 0.10F}, {0.42F, 0.44F}, {1.00F, 0.58F}, {0.62F, 0.22F}, {0.22F, -0.08F}, {0.0F, -0.08F}},
       dark);
  Fill(at, span,
       {{-0.10F, 0.10F}, {-0.36F, 0.50F}, {-0.92F, 0.72F}, {-0.60F, 0.26F}, {-0.22F, -0.08F}, {0.0F, -0.08F}},
       dark);
  Fill(at, span, {{-0.10F, 0.14F}, {0.0F, 0.26F}, {0.10F, 0.14F}, {0.10F, -0.16F}, {-0.10F, -0.16F}}, dark);
  Fill(at, span, {{-0.07F, -0.10F}, {-0.19F, -0.52F}, {0.0F, -0.60F}, {0.19F, -0.52F}, {0.07F, -0.10F}},
       dark);
}

void Moorland::PaintVignette() const {
  for (int y = 0; y < target_.height; ++y) {
    const float dy = static_cast<float>(y) / height_ - 0.45F;
    for (int x = 0; x < target_.width; ++x) {
      const float dx = static_cast<float>(x) / width_ - 0.5F;
      const float edge = (dx * dx * 1.1F + dy * dy * 0.9F) - 0.12F;
      if (edge > 0.0F) Blend(target_.At(x, y), 0x05050C, std::min(edge * 1.3F, 0.6F));
    }
  }
}

}  // namespace

void PaintMoorland(const Pixmap& target) {
  if (target.width > 0 && target.height > 0) Moorland(target).Paint();
}

}  // namespace troth::game
