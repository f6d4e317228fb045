// The line of text in a screenshot: what it says and where in the picture it stands. Draws nothing.
#pragma once

#include <optional>
#include <string>

#include "core/HotkeyOptions.h"
#include "platform/Geometry.h"
#include "platform/services/GraphicsService.h"
#include "platform/services/TimeService.h"

namespace troth {

// Names, the present moment and comment, as far as the options ask for them. Empty if they ask for none.
std::wstring LabelText(const ScreenshotOptions& options, const std::wstring& groom, const std::wstring& bride,
                       const TimeService& time);

struct LabelPlace {
  PixelRect rect;
  TextSide side = TextSide::Left;
};

// `topMargin` is the height of what the window's title bar takes of the picture. Nothing for a position
// outside 0 to 3, which only a changed settings store can hold.
std::optional<LabelPlace> PlaceLabel(int position, PixelSize picture, int topMargin, int textHeight);

}  // namespace troth
