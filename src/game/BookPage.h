// The page of the book that the officiant carries: text that is typed into it and stays until it is deleted.
// The window feeds it while the book is open; it never draws.
#pragma once

#include <cstddef>

#include "game/EditBuffer.h"

namespace troth::game {

class BookPage {
 public:
  // 13 breaks the line, 8 deletes before the cursor and joins lines at a line's start; other codes without a
  // shape are passed over.
  void Type(unsigned char code);

  EditBuffer& writing() { return writing_; }
  const EditBuffer& writing() const { return writing_; }

  // The cursor's line counts from 1.
  std::size_t CursorLine() const;
  std::size_t LineCount() const;

 private:
  EditBuffer writing_;
};

}  // namespace troth::game
