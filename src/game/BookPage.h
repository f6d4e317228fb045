// The page of the book that the officiant carries: text is typed into it and stays until it is deleted.
// The window passes it each character while the book is open; it never draws.
#pragma once

#include <cstddef>

#include "game/EditBuffer.h"

namespace troth::game {

class BookPage {
 public:
  // 13 starts a new line. 8 deletes the character before the cursor; at the start of a line it joins the line
  // with the one above. Other codes without a glyph are ignored.
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
