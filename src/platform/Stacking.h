// Place of a window in the stacking order. Used by forms and for the windows of other programs.
#pragma once

namespace troth {

// The values are those of the system.
enum class Stacking { TopMost = -1, NotTopMost = -2 };

}  // namespace troth
