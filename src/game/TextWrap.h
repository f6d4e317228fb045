// Breaks text into rows of a given width, from a table of glyph widths, and keeps the rows of the whole chat.
// Used by the view while painting; it needs no font and no device.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

#include "game/ChatLog.h"

namespace troth::game {

// Advance of each code of the 8-bit page, in pixels.
using GlyphWidths = std::array<int, 256>;

struct TextRow {
  std::size_t begin;
  std::size_t length;
};

int TextWidth(std::string_view text, const GlyphWidths& widths);

// Breaks after a blank, or inside a word that is wider than a row; a row holds at least one character. The
// blank after which a row breaks stays at its end, so rows tile the text but for its '\n', and each place
// of the cursor has a row. Rows after the first may be narrower, for a hanging indent. Never empty.
std::vector<TextRow> WrapText(std::string_view text, const GlyphWidths& widths, int firstWidth,
                              int nextWidth);

// The chat uses two typefaces: slanted for emotes and gestures, upright for speech.
struct ChatWidths {
  const GlyphWidths& upright;
  const GlyphWidths& slanted;
};

bool IsSlanted(Speech kind);

// The rows of all chat lines at one width. Sync after lines came, fell off or the width changed costs only
// what is new.
class ChatRows {
 public:
  struct Row {
    std::uint64_t line;  // running number of the chat line
    TextRow part;
  };

  void Reset() { width_ = -1; }
  // Returns how many rows were added at the bottom; 0 when all lines had to be broken again.
  std::size_t Sync(const ChatLog& chat, int width, int indent, const ChatWidths& widths);
  const std::deque<Row>& rows() const { return rows_; }

 private:
  std::deque<Row> rows_;
  std::uint64_t nextLine_ = 0;
  int width_ = -1;
};

}  // namespace troth::game
