#include "game/Furniture.h"

#include <algorithm>
#include <array>

namespace troth::game {
namespace {

constexpr Wash kGoldEdge{0xD9B878, 0x7C6238, 0.60F};

void PaintChat(const Pixmap& target, const Layout& layout) {
  const float line = std::max(1.0F, layout.scale);
  DropShadow(target, layout.chat, 14 * layout.scale, 0.35F);
  FillRoundBox(target, layout.chat, 8 * layout.scale, {0x16142A, 0x0B0A16, 0.84F});
  FrameRoundBox(target, layout.chat, 8 * layout.scale, line, kGoldEdge);
  FillRoundBox(target, layout.input, 5 * layout.scale, {0x05050D, 0x0A0A14, 0.75F});
  FrameRoundBox(target, layout.input, 5 * layout.scale, line, {0x8C7648, 0x8C7648, 0.55F});
}

// Fibres and a few stains, and darker towards the edges as old pages are.
void AgeParchment(const Pixmap& target, const Layout& layout) {
  const Box& page = layout.page;
  const float reach = 46 * layout.scale;
  for (int y = std::max(0, page.top); y < std::min(target.height, page.bottom); ++y) {
    for (int x = std::max(0, page.left); x < std::min(target.width, page.right); ++x) {
      const float dx = static_cast<float>(std::min(x - page.left, page.right - 1 - x));
      const float dy = static_cast<float>(std::min(y - page.top, page.bottom - 1 - y));
      const float edge = std::clamp(1.0F - std::min(dx, dy) / reach, 0.0F, 1.0F);
      const float grain = Hash(x, y) * 0.05F;
      // The two octaves are rotated against each other, so that no grid is visible.
      const float across = static_cast<float>(x) / layout.scale;
      const float down = static_cast<float>(y) / layout.scale;
      const float stain = SmoothNoise((across + down * 0.6F) / 96, (down - across * 0.5F) / 96) * 0.6F +
                          SmoothNoise((across - down * 0.4F) / 41, (down + across * 0.3F) / 41) * 0.4F;
      Blend(target.At(x, y), 0x8A5F2C, edge * edge * 0.38F + grain + std::max(0.0F, stain - 0.5F) * 0.28F);
    }
  }
}

void PaintBook(const Pixmap& target, const Layout& layout) {
  const float s = layout.scale;
  const float line = std::max(1.0F, s);
  DropShadow(target, layout.book, 26 * s, 0.6F);
  FillRoundBox(target, layout.book, 9 * s, {0x5A3220, 0x35190F});
  FrameRoundBox(target, layout.book.Shrunk(layout.Scaled(3)), 7 * s, line, {0xC79A55, 0x86602F, 0.8F});
  // The edges of the leaves beneath show at the right and at the foot.
  for (int leaf = 3; leaf >= 1; --leaf) {
    Box under = layout.page;
    under.right += layout.Scaled(leaf);
    under.bottom += layout.Scaled(leaf);
    FillRoundBox(target, under, 3 * s, leaf % 2 == 0 ? Wash{0xBFA878, 0xA48D60} : Wash{0xE0CC9C, 0xC4AC7C});
  }
  FillRoundBox(target, layout.page, 3 * s, {0xF3E6C6, 0xE9D8B0});
  AgeParchment(target, layout);
  const auto rule = [&](int y) {
    FillRoundBox(target, {layout.writing.left, y, layout.writing.right, y + std::max(1, layout.Scaled(1))}, 0,
                 {0x7A4B2A, 0x7A4B2A, 0.45F});
  };
  rule(layout.writing.top - layout.Scaled(10));
  rule(layout.writing.bottom + layout.Scaled(8));
}

void PaintRibbon(const Pixmap& target, const Layout& layout) {
  const Box& ribbon = layout.ribbon;
  const float s = layout.scale;
  const auto left = static_cast<float>(ribbon.left);
  const auto right = static_cast<float>(ribbon.right);
  const auto bottom = static_cast<float>(ribbon.bottom);
  const float notch = bottom - 12 * s;
  const auto tail = [&](float dx, float dy, float inset, const Wash& wash) {
    const std::array<Point, 5> shape{{{left + inset + dx, -4 * s},
                                      {right - inset + dx, -4 * s},
                                      {right - inset + dx, bottom + dy - inset},
                                      {(left + right) / 2 + dx, notch + dy - inset},
                                      {left + inset + dx, bottom + dy - inset}}};
    FillPolygon(target, shape, wash);
  };
  tail(3 * s, 4 * s, 0, {0x000000, 0x000000, 0.30F});
  tail(0, 0, 0, {0x5E1622, 0x8E2836});
  tail(0, 0, 3 * s, {0xD9B878, 0xD9B878, 0.55F});
  tail(0, 0, 4.2F * s, {0x6A1A27, 0x9C2F3D});
}

// A small open book, as the ribbon's sign.
void PaintBookSign(const Pixmap& target, const Layout& layout) {
  const float s = layout.scale;
  const float x = static_cast<float>(layout.ribbon.left + layout.ribbon.right) / 2;
  const float y = 19 * s;
  const Wash leaf{0xF6E9C8, 0xE2CD9C};
  const auto side = [&](float way) {
    const std::array<Point, 6> shape{{{x + way * 0.8F * s, y - 5 * s},
                                      {x + way * 6 * s, y - 8 * s},
                                      {x + way * 13 * s, y - 6 * s},
                                      {x + way * 13 * s, y + 7 * s},
                                      {x + way * 6 * s, y + 5 * s},
                                      {x + way * 0.8F * s, y + 8 * s}}};
    FillPolygon(target, shape, leaf);
  };
  side(-1);
  side(1);
}

void PaintStatus(const Pixmap& target, const Layout& layout) {
  FillRoundBox(target, layout.status, 0, {0x0B0A16, 0x06060D, 0.82F});
  Box edge = layout.status;
  edge.bottom = edge.top + std::max(1, layout.Scaled(1));
  FillRoundBox(target, edge, 0, {0xD9B878, 0xD9B878, 0.30F});
}

}  // namespace

void PaintFurniture(const Pixmap& target, const Layout& layout) {
  if (!layout.chat.IsEmpty()) PaintChat(target, layout);
  if (!layout.book.IsEmpty()) PaintBook(target, layout);
  PaintRibbon(target, layout);
  PaintBookSign(target, layout);
  PaintStatus(target, layout);
}

}  // namespace troth::game
