// Paints the moors at dusk, the backdrop of the whole window. The view calls it once per size.
#pragma once

#include "game/Raster.h"

namespace troth::game {

void PaintMoorland(const Pixmap& target);

}  // namespace troth::game
