#include "game/BookPage.h"

#include <algorithm>

namespace troth::game {

void BookPage::Type(unsigned char code) {
  if (code == kBackspace) {
    writing_.EraseBefore();
  } else if (code == kEnter) {
    writing_.Insert('\n');
  } else if (IsVisible(code)) {
    writing_.Insert(static_cast<char>(code));
  }
}

std::size_t BookPage::CursorLine() const {
  const auto begin = writing_.text().begin();
  const auto cursor = begin + static_cast<std::ptrdiff_t>(writing_.cursor());
  return 1 + static_cast<std::size_t>(std::count(begin, cursor, '\n'));
}

std::size_t BookPage::LineCount() const {
  return 1 + static_cast<std::size_t>(std::count(writing_.text().begin(), writing_.text().end(), '\n'));
}

}  // namespace troth::game
