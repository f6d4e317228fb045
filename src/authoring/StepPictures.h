// The pictures of the wizard, one for each step: drawn from shapes, so they are sharp at every size. Used by
// the wizard's window when it loads.
#pragma once

#include <cstddef>

#include "platform/forms/Canvas.h"

namespace troth {

// What a canvas for these pictures measures; its place should have the same proportions.
inline constexpr CanvasScale kStepPictureScale{0, 0, 105, 240};

// Draws the picture of the step, from 0, over the whole canvas.
void DrawStepPicture(Canvas& canvas, std::size_t step);

}  // namespace troth
