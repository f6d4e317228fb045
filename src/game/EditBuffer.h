// A piece of text with a cursor in it, in bytes of the system's 8-bit page; '\n' ends a line.
// The chat's input line and the book page are typed into through it. It knows nothing of windows or fonts.
#pragma once

#include <cstddef>
#include <string>

namespace troth::game {

class EditBuffer {
 public:
  const std::string& text() const { return text_; }
  std::size_t cursor() const { return cursor_; }

  void Insert(char c) { text_.insert(cursor_++, 1, c); }
  void EraseBefore();
  void EraseAfter();
  void Clear();
  std::string TakeAll();

  void MoveLeft();
  void MoveRight();
  void MoveToLineStart();
  void MoveToLineEnd();
  // One line up (-1) or down (+1), keeping the column as far as the other line reaches.
  void MoveLine(int direction);

 private:
  std::size_t LineStart(std::size_t at) const;
  std::size_t LineEnd(std::size_t at) const;

  std::string text_;
  std::size_t cursor_ = 0;
};

// Codes below a blank and 127 (Ctrl+Backspace) have no glyph in a line of text.
bool IsVisible(unsigned char code);

inline constexpr unsigned char kBackspace = 8;
inline constexpr unsigned char kEnter = 13;

}  // namespace troth::game
