#include "game/Layout.h"

#include <algorithm>
#include <cmath>

namespace troth::game {
namespace {

// A window too small for its DPI is drawn at a smaller scale, so that its parts do not overlap.
float ScaleFor(int width, int height, unsigned dpi) {
  constexpr float kNeededWidth = 500;  // for all parts at 96 DPI
  constexpr float kNeededHeight = 300;
  constexpr float kSmallest = 0.5F;
  const float fitting =
      std::min(static_cast<float>(width) / kNeededWidth, static_cast<float>(height) / kNeededHeight);
  return std::max(kSmallest, std::min(static_cast<float>(dpi) / 96.0F, fitting));
}

void ArrangeChat(Layout& layout) {
  const int pad = layout.Scaled(12);
  const Box& chat = layout.chat;
  layout.input = {chat.left + pad, chat.bottom - pad - layout.Scaled(34), chat.right - pad,
                  chat.bottom - pad};
  layout.log = {chat.left + pad + layout.Scaled(4), chat.top + pad, chat.right - pad - layout.Scaled(8),
                layout.input.top - layout.Scaled(8)};
}

void ArrangeBook(Layout& layout) {
  layout.page = layout.book.Shrunk(layout.Scaled(9));
  const int side = layout.Scaled(30);
  layout.writing = {layout.page.left + side, layout.page.top + layout.Scaled(62), layout.page.right - side,
                    layout.page.bottom - layout.Scaled(42)};
}

}  // namespace

int Layout::Scaled(int length) const {
  return static_cast<int>(std::lround(static_cast<float>(length) * scale));
}

Layout Arrange(int width, int height, unsigned dpi, bool bookOpen) {
  Layout layout;
  layout.scale = ScaleFor(width, height, dpi);
  const auto scaled = [&](int length) { return layout.Scaled(length); };
  const int margin = scaled(16);
  layout.status = {0, height - scaled(28), width, height};
  layout.banner = {margin + scaled(4), scaled(12), width - scaled(110), scaled(64)};
  layout.ribbon = {width - scaled(94), 0, width - scaled(42), scaled(84)};

  const int bottom = layout.status.top - scaled(10);
  // In a low window the chat is more important than the sky.
  const int sky = std::max(
      scaled(12), std::min(static_cast<int>(0.46F * static_cast<float>(height)), bottom - scaled(190)));
  layout.chat = {margin, sky, width - margin, bottom};
  if (bookOpen) {
    const bool beside = width >= scaled(700);
    const int bookWidth =
        beside ? std::clamp(width * 44 / 100, scaled(340), scaled(560)) : width - 2 * margin;
    layout.book = {width - margin - bookWidth, scaled(18), width - margin, bottom};
    layout.chat.right = beside ? layout.book.left - scaled(14) : layout.chat.left;
    layout.banner.right = beside ? layout.chat.right : 0;
    ArrangeBook(layout);
  }
  if (!layout.chat.IsEmpty()) ArrangeChat(layout);
  return layout;
}

}  // namespace troth::game
