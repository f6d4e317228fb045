// Where everything in the window lies, for a size, a DPI and a book that is open or shut. The view and the
// mouse ask it; it draws nothing.
#pragma once

#include "game/Raster.h"

namespace troth::game {

struct Layout {
  float scale = 1;  // pixels for a 96th of an inch; fewer where the window is too small for that
  Box banner;       // who and where, at the top left
  Box chat;         // the glass panel; empty where the book lies over it
  Box log;          // text of the spoken lines
  Box input;        // frame of the line being typed
  Box book;         // leather cover; empty while shut
  Box page;         // parchment
  Box writing;      // text on the parchment
  Box ribbon;       // the bookmark that opens and shuts the book
  Box status;

  // A length given for 96 DPI.
  int Scaled(int length) const;
};

Layout Arrange(int width, int height, unsigned dpi, bool bookOpen);

}  // namespace troth::game
