#include "game/EditBuffer.h"

#include <algorithm>
#include <utility>

namespace troth::game {

void EditBuffer::EraseBefore() {
  if (cursor_ > 0) text_.erase(--cursor_, 1);
}

void EditBuffer::EraseAfter() {
  if (cursor_ < text_.size()) text_.erase(cursor_, 1);
}

void EditBuffer::Clear() {
  text_.clear();
  cursor_ = 0;
}

std::string EditBuffer::TakeAll() {
  cursor_ = 0;
  return std::exchange(text_, {});
}

void EditBuffer::MoveLeft() {
  if (cursor_ > 0) --cursor_;
}

void EditBuffer::MoveRight() {
  if (cursor_ < text_.size()) ++cursor_;
}

void EditBuffer::MoveToLineStart() { cursor_ = LineStart(cursor_); }

void EditBuffer::MoveToLineEnd() { cursor_ = LineEnd(cursor_); }

void EditBuffer::MoveLine(int direction) {
  const std::size_t start = LineStart(cursor_);
  const std::size_t column = cursor_ - start;
  if (direction < 0) {
    if (start == 0) return;
    const std::size_t above = LineStart(start - 1);
    cursor_ = std::min(above + column, start - 1);
    return;
  }
  const std::size_t end = LineEnd(cursor_);
  if (end == text_.size()) return;
  cursor_ = std::min(end + 1 + column, LineEnd(end + 1));
}

std::size_t EditBuffer::LineStart(std::size_t at) const {
  if (at == 0) return 0;
  const std::size_t lineBreak = text_.rfind('\n', at - 1);
  return lineBreak == std::string::npos ? 0 : lineBreak + 1;
}

std::size_t EditBuffer::LineEnd(std::size_t at) const {
  const std::size_t lineBreak = text_.find('\n', at);
  return lineBreak == std::string::npos ? text_.size() : lineBreak;
}

bool IsVisible(unsigned char code) { return code >= ' ' && code != 127; }

}  // namespace troth::game
