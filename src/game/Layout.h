// The bounds of everything in the window, for a size, a DPI and a book that is open or closed. Used by the
// view and for the mouse; it draws nothing.
#pragma once

#include "game/Raster.h"

namespace troth::game {

struct Layout {
  float scale = 1;  // pixels for a 96th of an inch; fewer where the window is too small for that
  Box banner;       // who and where, at the top left
  Box chat;         // the glass panel; empty where the book covers it
  Box log;          // text of the spoken lines
  Box input;        // frame of the line being typed
  Box book;         // leather cover; empty while closed
  Box page;         // parchment
  Box writing;      // text on the parchment
  Box ribbon;       // the bookmark that opens and closes the book
  Box status;

  // A length given for 96 DPI.
  int Scaled(int length) const;
};

Layout Arrange(int width, int height, unsigned dpi, bool bookOpen);

}  // namespace troth::game
