#include "game/TextWrap.h"

#include <algorithm>

namespace troth::game {
namespace {

int WidthOf(char c, const GlyphWidths& widths) { return widths[static_cast<unsigned char>(c)]; }

// How many of the first characters of a paragraph make its first row.
std::size_t RowLength(std::string_view paragraph, const GlyphWidths& widths, int width) {
  std::size_t afterBlank = 0;
  int used = 0;
  for (std::size_t i = 0; i < paragraph.size(); ++i) {
    used += WidthOf(paragraph[i], widths);
    if (paragraph[i] == ' ') {
      afterBlank = i + 1;  // a blank may hang over the edge
    } else if (used > width) {
      if (afterBlank > 0) return afterBlank;
      return std::max<std::size_t>(i, 1);
    }
  }
  return paragraph.size();
}

}  // namespace

int TextWidth(std::string_view text, const GlyphWidths& widths) {
  int sum = 0;
  for (const char c : text) sum += WidthOf(c, widths);
  return sum;
}

std::vector<TextRow> WrapText(std::string_view text, const GlyphWidths& widths, int firstWidth,
                              int nextWidth) {
  std::vector<TextRow> rows;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    do {
      const int width = rows.empty() ? firstWidth : nextWidth;
      const std::size_t length = RowLength(text.substr(begin, end - begin), widths, width);
      rows.push_back({begin, length});
      begin += length;
    } while (begin < end);
    if (end == text.size()) return rows;
    begin = end + 1;
  }
}

bool IsSlanted(Speech kind) {
  return kind == Speech::Narration || kind == Speech::Emote || kind == Speech::Gesture;
}

std::size_t ChatRows::Sync(const ChatLog& chat, int width, int indent, const ChatWidths& widths) {
  const bool isNewWidth = width != width_;
  if (isNewWidth) {
    rows_.clear();
    nextLine_ = chat.dropped();
    width_ = width;
  }
  while (!rows_.empty() && rows_.front().line < chat.dropped()) rows_.pop_front();
  nextLine_ = std::max(nextLine_, chat.dropped());

  const std::size_t before = rows_.size();
  for (; nextLine_ < chat.dropped() + chat.lines().size(); ++nextLine_) {
    const ChatLine& line = chat.lines()[static_cast<std::size_t>(nextLine_ - chat.dropped())];
    const GlyphWidths& face = IsSlanted(line.kind) ? widths.slanted : widths.upright;
    for (const TextRow& part : WrapText(line.text, face, width, width - indent))
      rows_.push_back({nextLine_, part});
  }
  return isNewWidth ? 0 : rows_.size() - before;
}

}  // namespace troth::game
