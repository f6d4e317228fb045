// Paints what covers the moors and changes only with the layout: the glass of the chat, the
// input frame, the book, its ribbon and the status bar. The view calls it once per layout; texts come later.
#pragma once

#include "game/Layout.h"

namespace troth::game {

void PaintFurniture(const Pixmap& target, const Layout& layout);

}  // namespace troth::game
